import {textsOf} from './texts.js';
import {shownNumber, word} from './words.js';

const rowsAtOnce = 100;
const mostColumns = 50;

function cell(kind, text, isNumber) {
  const element = document.createElement(kind);
  element.textContent = text;
  if (kind === 'th') element.scope = 'col';
  if (isNumber) element.className = 'number';
  return element;
}

function row(cells) {
  const element = document.createElement('tr');
  element.append(...cells);
  return element;
}

/** One data source, where `region` stands; what belongs to it follows. */
class Table {
  constructor({columns: all, rows}, config, region) {
    const columns = all.slice(0, mostColumns);
    Object.assign(this, {config, columns, rows, start: 0});
    this.isNumber = columns.map(({field}) => rows.some((datum) => typeof datum[field] === 'number'));
    this.table = document.createElement('table');
    this.table.createTHead().append(row(columns.map(({title}, i) => cell('th', title, this.isNumber[i]))));
    this.body = this.table.createTBody();
    this.place = document.createElement('p');
    this.place.setAttribute('role', 'status');
    this.before = this.button('Previous rows', -rowsAtOnce);
    this.after = this.button('Next rows', rowsAtOnce);
    region.append(this.table);
    const buttons = rows.length > rowsAtOnce ? [this.before, this.after] : [];
    region.after(...wordOnColumns(columns, all), this.place, ...buttons);
  }

  button(key, way) {
    const button = document.createElement('button');
    button.textContent = word(key);
    button.addEventListener('click', () => this.show(this.start + way));
    return button;
  }

  async show(start) {
    this.start = start;
    const shown = this.rows.slice(start, start + rowsAtOnce);
    const texts = await textsOf(shown, this.columns, this.config);
    this.body.replaceChildren(
      ...texts.map((line) => row(line.map((text, i) => cell('td', text, this.isNumber[i])))));
    this.before.disabled = start === 0;
    this.after.disabled = start + rowsAtOnce >= this.rows.length;
    this.place.textContent = word('Rows^3', shownNumber(Math.min(start + 1, this.rows.length)),
      shownNumber(start + shown.length), shownNumber(this.rows.length));
  }
}

function wordOnColumns(shown, all) {
  if (shown.length === all.length) return [];
  const element = document.createElement('p');
  element.textContent = word('Columns^2', shownNumber(shown.length), shownNumber(all.length));
  return [element];
}

/** A region for a source among several, under its name. */
function regionOf({name}, first, details) {
  const heading = document.createElement('h3');
  heading.textContent = word('Data source^1', name);
  const region = first.cloneNode(false);
  region.setAttribute('aria-label', heading.textContent);
  details.append(heading, region);
  return region;
}

/** The rows of the data sources, a hundred at once, made when they are asked for. */
export function addTables({spec, sources}, details) {
  if (sources.length === 0) {
    details.remove();
    return;
  }
  const open = () => {
    details.removeEventListener('toggle', open);
    const first = details.querySelector('.table');
    const regions = sources.length === 1 ? [first] : sources.map((source) => regionOf(source, first, details));
    if (sources.length > 1) first.remove();
    sources.forEach((source, i) => new Table(source, spec.config, regions[i]).show(0));
  };
  details.addEventListener('toggle', open);
}
