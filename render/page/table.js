const mostRows = 100;

function cell(kind, text, isNumber) {
  const element = document.createElement(kind);
  element.textContent = text;
  if (isNumber) element.className = 'number';
  return element;
}

function row(cells) {
  const element = document.createElement('tr');
  element.append(...cells);
  return element;
}

/** Shows the first rows of the first data source, with the labels of its categories. */
export function fillTable(view, spec, details) {
  const columns = spec.usermeta.columns;
  if (columns.length === 0) {
    details.remove();
    return;
  }
  const values = view.data(spec.data[0].name);
  const shown = values.slice(0, mostRows);
  const isNumber = (field) => shown.some((datum) => typeof datum[field] === 'number');
  const text = ({field, labels}, datum) => {
    const value = datum[field] ?? '';
    return labels && Object.hasOwn(labels, value) ? labels[value] : value;
  };

  const table = document.createElement('table');
  const head = table.createTHead();
  head.append(row(columns.map((column) => cell('th', column.title, isNumber(column.field)))));
  const body = table.createTBody();
  for (const datum of shown)
    body.append(row(columns.map((c) => cell('td', text(c, datum), isNumber(c.field)))));

  details.querySelector('.table').append(table);
  details.querySelector('summary').textContent =
    shown.length < values.length
      ? `Data (the first ${shown.length} of ${values.length} rows)`
      : `Data (${values.length} rows)`;
}
