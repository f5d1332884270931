// Shows and hides groups and elements, by the entries of their legend and by a list of boxes.

import {literal, textsOf} from './texts.js';
import {word} from './words.js';

const mostBoxes = 100;

const scalesOf = (spec) => [...(spec.scales ?? []), ...(spec.marks?.[0]?.scales ?? [])];
const legendsOf = (spec) => [...(spec.legends ?? []), ...(spec.marks?.[0]?.legends ?? [])];

const isShown = (signal, value) => `indexof(${signal}, ${value}) < 0`;

const scaleOf = (name, spec) => scalesOf(spec).find((candidate) => candidate.name === name);

/** The variable whose categories a legend shows: its scales are named by it. */
function variableOf(legend, spec) {
  const name = legend.stroke ?? legend.fill ?? legend.shape;
  const scale = scaleOf(name, spec);
  if (scale?.type !== 'ordinal' || !Array.isArray(scale.domain)) return null;
  return {field: name.replace(/^[^_]*_/, ''), values: scale.domain};
}

/** Whether pieces of a variable begin where others end: without these they would float. */
const isStack = ({field}, data) => data.some(({values}) => {
  const ends = new Set(values.map(({high}) => high));
  return values.some((row) => field in row && row.low !== 0 && row.low !== row.high && ends.has(row.low));
});

/** The groups of a variable that can be hidden, and where its rows are. */
function groupsOf(legend, spec) {
  const variable = variableOf(legend, spec);
  const data = variable ? spec.data.filter(({values}) => values?.some((row) => variable.field in row)) : [];
  if (data.length === 0 || variable.values.length > mostBoxes) return null;
  const isPie = spec.marks[0].marks?.some(({type}) => type === 'arc');
  if (!isPie && isStack(variable, data)) return {isStack: true};
  const hidden = `datum[${literal(variable.field)}]`;
  return {...variable, targets: data.map((set) => ({set, hidden}))};
}

/** The elements that a legend calls by their names, each with data of its own. */
function elementsOf(legend, spec) {
  const variable = variableOf(legend, spec);
  if (!/^named\d+$/.test(variable?.field)) return null;
  const isOf = (id, {name}) => name === id || (name.startsWith(`${id}_`) && /^\d+$/.test(name.slice(id.length + 1)));
  const targets = variable.values.flatMap((id) =>
    spec.data.filter((set) => isOf(id, set)).map((set) => ({set, id, hidden: literal(id)})));
  const shown = scaleOf(`label_${variable.field}`, spec).range.map((text) => [text].flat().join(' '));
  const isDrawn = (id) => targets.some((target) => target.id === id);
  return {
    field: variable.field, targets,
    values: variable.values.filter(isDrawn), texts: shown.filter((_, i) => isDrawn(variable.values[i])),
  };
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

/** Makes groups and elements of the legends hideable; returns a filter for each legend. */
export function prepareFilters(spec) {
  const filters = [];
  for (const legend of legendsOf(spec)) {
    const entries = elementsOf(legend, spec) ?? groupsOf(legend, spec);
    if (!entries) continue;
    const title = [legend.title ?? ''].flat().join(' ');
    const signal = `hidden_${filters.length}`;
    const name = `filter_${filters.length}_`;
    if (entries.isStack) {
      spec.usermeta.stacked = title;
      continue;
    }
    if (entries.values.length === 0) continue;
    filters.push({...entries, signal, name, title});
    spec.signals.push({name: signal, value: []});
    for (const {set, hidden} of entries.targets)
      set.transform = [{type: 'filter', expr: isShown(signal, hidden)}, ...(set.transform ?? [])];
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
  const texts = filter.texts?.map((text) => [text]) ?? await textsOf(
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
  if (filter.title) set.append(legend);
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
  if (page.spec.usermeta.stacked === undefined) return;
  const reason = document.createElement('p');
  reason.className = 'soft';
  reason.textContent = word('Stack^1', page.spec.usermeta.stacked);
  place.append(reason);
}
