// Goes from mark to mark with the arrow keys and tells each one's values.

import {textOf} from './tooltip.js';
import {shownNumber, word} from './words.js';

/** A curve is computed at very many places; so many of them are enough to follow it. */
const stopsOfCurve = 25;

/** Longer series are not compared with others. */
const mostCompared = 500;

const isRun = ({marktype}) => marktype === 'line' || marktype === 'area' || marktype === 'trail';

/**
 * Names the marks that can be walked through, those that the Vega chart says how for;
 * returns how for each name.
 */
export function prepareWalk(spec) {
  const walks = new Map();
  const prepare = (mark) => {
    if (mark.walk && mark.aria !== false) {
      mark.name ??= `walk_${walks.size}`;
      walks.set(mark.name, mark.walk);
    }
    mark.marks?.forEach(prepare);
  };
  spec.marks?.forEach(prepare);
  return walks;
}

/** The marks below a group that are walked through, with where their group lies. */
function* marksBelow(group, walks, x, y) {
  for (const mark of group.items) {
    if (walks.has(mark.name)) yield {mark, walk: walks.get(mark.name), x, y};
    if (mark.marktype !== 'group') continue;
    for (const inner of mark.items) yield* marksBelow(inner, walks, x + (inner.x ?? 0), y + (inner.y ?? 0));
  }
}

const evenly = (items, count) =>
  Array.from({length: count}, (_, i) => items[Math.round((i * (items.length - 1)) / (count - 1))]);

/** The items of a mark that are stops; what is told as a whole is one. */
function itemsOf({items}, {whole, curve}) {
  const shown = items.filter(({defined, tooltip}) => defined !== false && tooltip);
  if (whole) return shown.slice(shown.length >> 1, (shown.length >> 1) + 1);
  return curve && shown.length > stopsOfCurve ? evenly(shown, stopsOfCurve) : shown;
}

/** How far along the way of its series an item stands. */
const ways = {
  right: ({x}) => x,
  down: ({y}) => y,
  up: ({y}) => -y,
};

function stopsOf({mark, walk, x, y}) {
  const isPoint = isRun(mark) || mark.marktype === 'symbol' || mark.marktype === 'path';
  return itemsOf(mark, walk).map((item) => {
    const {x1, x2, y1, y2} = item.bounds;
    const place = isPoint ? {x: item.x, y: item.y} : {x: (x1 + x2) / 2, y: (y1 + y2) / 2};
    const along = walk.by ? item.datum[walk.by] : ways[walk.along]?.(place);
    return {item, along, x: x + place.x, y: y + place.y};
  });
}

/** One series for each group of a mark, and for each line. */
function keyOf({mark, walk}, {item}, number) {
  const group = (walk.groups ?? []).map((field) => item.datum?.[field]);
  const isOwn = isRun(mark) && !walk.whole;
  return JSON.stringify([walk.series ?? (isOwn ? number : mark.name), group]);
}

const inOrder = (stops) =>
  stops[0].along === undefined ? stops : stops.sort((a, b) => a.along - b.along || a.y - b.y);

/** Points on a line that say the same as it are gone through once. */
function withoutTwins(series) {
  const told = new Set();
  return series.filter((stops) => {
    if (stops.length > mostCompared) return true;
    const texts = stops.map(({item}) => textOf(item.tooltip)).join('\n');
    return !told.has(texts) && told.add(texts);
  });
}

/** What can be gone through: a list of stops for each series, along the axis of places. */
function seriesOf({view, spec, walks}) {
  const isSeen = ({x, y}) =>
    !spec.signals.some(({name}) => name === 'zoomed') || !view.signal('zoomed') ||
    (x >= 0 && x <= view.width() && y >= 0 && y <= view.height());
  const series = new Map();
  let number = 0;
  for (const placed of marksBelow(view.scenegraph().root.items[0], walks, 0, 0)) {
    number += 1;
    for (const stop of stopsOf(placed).filter(isSeen)) {
      const key = keyOf(placed, stop, number);
      if (!series.has(key)) series.set(key, []);
      series.get(key).push(stop);
    }
  }
  return withoutTwins([...series.values()].map(inOrder));
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

  go(step, toGroup) {
    this.series ??= seriesOf(this.page);
    if (this.series.length === 0) return;
    const former = this.stop;
    if (former) this.group += toGroup + this.series.length;
    this.group %= this.series.length;
    const stops = this.series[this.group];
    this.index = toGroup && former ? nearest(stops, former) : this.index + step;
    this.index = Math.min(Math.max(this.index, 0), stops.length - 1);
    this.tell(stops);
  }

  get stop() {
    return this.series?.[this.group]?.[this.index];
  }

  tell(stops) {
    this.mark(this.stop);
    this.live.textContent = word('Position^3', textOf(this.stop.item.tooltip),
      shownNumber(this.index + 1), shownNumber(stops.length));
  }

  /** Puts the ring where the mark is now. */
  mark(stop) {
    if (!stop) return;
    const matrix = this.container.querySelector('svg > g').getScreenCTM();
    const at = new DOMPoint(stop.x, stop.y).matrixTransform(matrix);
    const box = this.ring.parentElement;
    const origin = box.getBoundingClientRect();
    this.ring.style.left = `${at.x - origin.left + box.scrollLeft}px`;
    this.ring.style.top = `${at.y - origin.top}px`;
    this.ring.hidden = false;
    this.ring.scrollIntoView({block: 'nearest', inline: 'nearest'});
  }
}

function nearest(stops, {along = 0}) {
  let best = 0;
  stops.forEach((stop, i) => {
    if (Math.abs(stop.along - along) < Math.abs(stops[best].along - along)) best = i;
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
