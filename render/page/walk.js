// Goes from mark to mark with the arrow keys and tells each one's values.

import {textsOf} from './texts.js';
import {shownNumber, word} from './words.js';

const isDecoration = /^(axis|legend|title)/;
const isRun = ({marktype}) => marktype === 'line' || marktype === 'area' || marktype === 'trail';

/** The marks below a group with where their group lies. */
function* marksBelow(group, x, y) {
  for (const mark of group.items) {
    if (isDecoration.test(mark.role ?? '')) continue;
    if (mark.marktype !== 'group') yield {mark, x, y};
    else for (const inner of mark.items) yield* marksBelow(inner, x + (inner.x ?? 0), y + (inner.y ?? 0));
  }
}

const middle = (items) => items.slice(items.length >> 1, (items.length >> 1) + 1);

/** Lines whose points are no rows of the data are one place to stop at. */
function stopsOf({mark, x, y}, fields) {
  const hasRows = fields.some((field) => mark.items[0]?.datum && field in mark.items[0].datum);
  const items = isRun(mark) && !hasRows ? middle(mark.items) : mark.items;
  return items.filter(({defined}) => defined !== false).map((item) => {
    const {x1, x2, y1, y2} = item.bounds;
    const isPoint = isRun(mark) || mark.marktype === 'symbol';
    return {
      item,
      isRow: isRun(mark) && hasRows,
      x: x + (isPoint ? item.x : (x1 + x2) / 2),
      y: y + (isPoint ? item.y : (y1 + y2) / 2),
    };
  });
}

/** What can be gone through: a list of stops, from left to right, for each group. */
function seriesOf({view, spec, filters}) {
  const fields = spec.usermeta.columns.map(({field}) => field);
  const isSeen = ({x, y}) =>
    !spec.signals.some(({name}) => name === 'zoomed') || !view.signal('zoomed') ||
    (x >= 0 && x <= view.width() && y >= 0 && y <= view.height());
  const series = new Map();
  let number = 0;
  for (const placed of marksBelow(view.scenegraph().root.items[0], 0, 0)) {
    number += 1;
    for (const stop of stopsOf(placed, fields)) {
      const group = filters.map(({field}) => stop.item.datum?.[field]);
      const key = JSON.stringify([isRun(placed.mark) ? number : placed.mark.marktype, group]);
      if (!isSeen(stop)) continue;
      if (!series.has(key)) series.set(key, []);
      series.get(key).push(stop);
    }
  }
  return [...series.values()].map((stops) => stops.sort((a, b) => a.x - b.x || a.y - b.y));
}

async function textOf({item, isRow}, {spec}) {
  if (item.tooltip && !isRow)
    return item.tooltip().map(([title, text]) => (title ? `${title}: ${text}` : text)).join('; ');
  const columns = spec.usermeta.columns.filter(({field}) => item.datum && field in item.datum);
  const [texts = []] = await textsOf([item.datum ?? {}], columns, spec.config);
  return columns.map(({title}, i) => `${title}: ${texts[i]}`).join('; ');
}

class Walk {
  constructor(page, container, live) {
    Object.assign(this, {page, container, live, series: null, group: 0, index: -1});
    this.ring = document.createElement('div');
    this.ring.className = 'ring';
    this.ring.hidden = true;
    container.after(this.ring);
  }

  /** The marks are no longer where they were. */
  renew() {
    this.series = null;
    this.leave();
  }

  leave() {
    this.index = -1;
    this.ring.hidden = true;
    this.live.textContent = '';
  }

  async go(step, toGroup) {
    this.series ??= seriesOf(this.page);
    if (this.series.length === 0) return;
    const former = this.stop;
    if (former) this.group += toGroup + this.series.length;
    this.group %= this.series.length;
    const stops = this.series[this.group];
    this.index = toGroup && former ? nearest(stops, former) : this.index + step;
    this.index = Math.min(Math.max(this.index, 0), stops.length - 1);
    await this.tell(stops);
  }

  get stop() {
    return this.series?.[this.group]?.[this.index];
  }

  async tell(stops) {
    const {stop} = this;
    this.mark(stop);
    const text = await textOf(stop, this.page);
    if (stop !== this.stop) return;
    this.live.textContent =
      word('Position^3', text, shownNumber(this.index + 1), shownNumber(stops.length));
  }

  /** Puts the ring where the mark is now. */
  mark(stop) {
    if (!stop) return;
    const matrix = this.container.querySelector('svg > g').getScreenCTM();
    const at = new DOMPoint(stop.x, stop.y).matrixTransform(matrix);
    const origin = this.ring.parentElement.getBoundingClientRect();
    this.ring.style.left = `${at.x - origin.left}px`;
    this.ring.style.top = `${at.y - origin.top}px`;
    this.ring.hidden = false;
  }
}

function nearest(stops, {x}) {
  let best = 0;
  stops.forEach((stop, i) => {
    if (Math.abs(stop.x - x) < Math.abs(stops[best].x - x)) best = i;
  });
  return best;
}

const keys = {
  ArrowRight: (walk) => walk.go(1, 0),
  ArrowLeft: (walk) => walk.go(-1, 0),
  ArrowDown: (walk) => walk.go(0, 1),
  ArrowUp: (walk) => walk.go(0, -1),
  Home: (walk) => walk.go(-Infinity, 0),
  End: (walk) => walk.go(Infinity, 0),
  Escape: (walk) => walk.leave(),
};

export function addWalk(page, container, live) {
  const walk = new Walk(page, container, live);
  container.setAttribute('role', 'application');
  container.setAttribute('aria-label', page.spec.usermeta.title);
  container.setAttribute('aria-roledescription', word('Chart'));
  container.setAttribute('aria-describedby', 'about keys');
  container.tabIndex = 0;
  document.getElementById('keys').hidden = false;
  container.addEventListener('keydown', (event) => {
    const act = keys[event.key];
    if (!act || event.shiftKey || event.ctrlKey || event.metaKey || event.altKey) return;
    event.preventDefault();
    act(walk);
  });
  // The text stays: what is below it must not move under the pointer that clicks there.
  container.addEventListener('blur', () => (walk.ring.hidden = true));
  addEventListener('resize', () => walk.mark(walk.stop));
  return walk;
}
