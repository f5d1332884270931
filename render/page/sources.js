/** The data sources of a Vega chart that have columns to show: name, columns and rows. */
export function sourcesOf({data, usermeta}) {
  const first = data[0]?.name;
  const names = new Set(usermeta.columns.map(({source = first}) => source));
  return [...names].map((name) => ({
    name,
    columns: usermeta.columns.filter(({source = first}) => source === name),
    rows: data.find((set) => set.name === name)?.values ?? [],
  }));
}
