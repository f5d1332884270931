import {textsOf} from './texts.js';
import {shownNumber, word} from './words.js';

const rowsAtOnce = 100;

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

class Table {
  constructor({spec, rows}, details) {
    const {columns} = spec.usermeta;
    Object.assign(this, {config: spec.config, columns, rows, start: 0});
    this.isNumber = columns.map(({field}) => rows.some((datum) => typeof datum[field] === 'number'));
    this.table = document.createElement('table');
    this.table.createTHead().append(row(columns.map(({title}, i) => cell('th', title, this.isNumber[i]))));
    this.body = this.table.createTBody();
    this.place = document.createElement('p');
    this.place.setAttribute('role', 'status');
    this.before = this.button('Previous rows', -rowsAtOnce);
    this.after = this.button('Next rows', rowsAtOnce);
    details.querySelector('.table').append(this.table);
    details.append(this.place);
    if (rows.length > rowsAtOnce) details.append(this.before, this.after);
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

/** The rows of the first data source, a hundred at once, made when they are asked for. */
export function addTable(page, details) {
  if (page.spec.usermeta.columns.length === 0) {
    details.remove();
    return;
  }
  const open = () => {
    details.removeEventListener('toggle', open);
    new Table(page, details).show(0);
  };
  details.addEventListener('toggle', open);
}
