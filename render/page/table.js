import {textsOf} from './texts.js';

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

/** Shows the first rows of the first data source, as the chart shows its values. */
export async function fillTable(view, spec, details) {
  const columns = spec.usermeta.columns;
  if (columns.length === 0) {
    details.remove();
    return;
  }
  const values = view.data(spec.data[0].name);
  const shown = values.slice(0, mostRows);
  const isNumber = columns.map(({field}) => shown.some((datum) => typeof datum[field] === 'number'));

  const table = document.createElement('table');
  const head = table.createTHead();
  head.append(row(columns.map(({title}, i) => cell('th', title, isNumber[i]))));
  const body = table.createTBody();
  for (const texts of await textsOf(shown, columns, spec.config))
    body.append(row(texts.map((text, i) => cell('td', text, isNumber[i]))));

  details.querySelector('.table').append(table);
  details.querySelector('summary').textContent =
    shown.length < values.length
      ? `Data (the first ${shown.length} of ${values.length} rows)`
      : `Data (${values.length} rows)`;
}
