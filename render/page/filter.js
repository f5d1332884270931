// Shows and hides the groups of a legend, by its entries and by a list of boxes.

import {literal, textsOf} from './texts.js';

const mostBoxes = 100;

const scalesOf = (spec) => [...(spec.scales ?? []), ...(spec.marks?.[0]?.scales ?? [])];
const legendsOf = (spec) => [...(spec.legends ?? []), ...(spec.marks?.[0]?.legends ?? [])];

const isShown = (signal, value) => `indexof(${signal}, ${value}) < 0`;

/** The variable whose categories a legend shows: its scales are named by it. */
function variableOf(legend, spec) {
  const name = legend.stroke ?? legend.fill ?? legend.shape;
  const scale = scalesOf(spec).find((candidate) => candidate.name === name);
  if (scale?.type !== 'ordinal' || !Array.isArray(scale.domain)) return null;
  return {field: name.replace(/^[^_]*_/, ''), values: scale.domain};
}

/** Legends draw a hidden entry faintly and take clicks. */
function dim(legend, name, signal) {
  legend.encode ??= {};
  for (const part of ['symbols', 'labels']) {
    const encode = (legend.encode[part] ??= {});
    encode.name = name + part;
    encode.interactive = true;
    encode.update = {
      ...encode.update,
      opacity: {signal: `${isShown(signal, 'datum.value')} ? 1 : 0.35`},
      cursor: {value: 'pointer'},
    };
  }
}

/** Makes the groups of the legends hideable; returns a filter for each. */
export function prepareFilters(spec) {
  const filters = [];
  for (const legend of legendsOf(spec)) {
    const variable = variableOf(legend, spec);
    const data = variable && spec.data.filter(({values}) => values?.some((row) => variable.field in row));
    if (!variable || data.length === 0 || variable.values.length > mostBoxes) continue;
    const signal = `hidden_${filters.length}`;
    const name = `filter_${filters.length}_`;
    filters.push({...variable, signal, name, title: [legend.title].flat().join(' ')});
    spec.signals.push({name: signal, value: []});
    const expr = isShown(signal, `datum[${literal(variable.field)}]`);
    for (const set of data) set.transform = [{type: 'filter', expr}, ...(set.transform ?? [])];
    dim(legend, name, signal);
  }
  return filters;
}

function box(text, isChecked, change) {
  const label = document.createElement('label');
  const input = document.createElement('input');
  input.type = 'checkbox';
  input.checked = isChecked;
  input.addEventListener('change', change);
  label.append(input, ` ${text}`);
  return {label, input};
}

async function addFilter(filter, {view, spec, changed}, place) {
  const column = spec.usermeta.columns.find(({field}) => field === filter.field) ?? filter;
  const texts = await textsOf(
    filter.values.map((value) => ({[filter.field]: value})), [column], spec.config);
  const toggle = async (value) => {
    const hidden = view.signal(filter.signal);
    const others = hidden.filter((other) => other !== value);
    await view.signal(filter.signal, others.length < hidden.length ? others : [...hidden, value]).runAsync();
    inputs.get(value).checked = others.length < hidden.length;
    changed();
  };
  const set = document.createElement('fieldset');
  const legend = document.createElement('legend');
  legend.textContent = filter.title;
  set.append(legend);
  const inputs = new Map();
  filter.values.forEach((value, i) => {
    const {label, input} = box(texts[i][0], true, () => toggle(value));
    inputs.set(value, input);
    set.append(label);
  });
  place.append(set);
  view.addEventListener('click', (event, item) => {
    if (item?.mark?.name?.startsWith(filter.name) && inputs.has(item.datum.value)) toggle(item.datum.value);
  });
}

export async function addFilters(page, place) {
  for (const filter of page.filters) await addFilter(filter, page, place);
}
