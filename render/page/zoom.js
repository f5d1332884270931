// Zooms and moves the continuous scales of a plot within their whole ranges.

import {scale as scaleOf} from 'vega';
import {literal, textsOf} from './texts.js';
import {word} from './words.js';

const mostTicks = 8;
const deepest = 10000; // of the whole range
/** Dates count seconds from 14 October 1582; browsers count from 1970. */
const yearOfBrowsers = 12219379200;
const decimals = /"([^"]*)\.(\d+)f"/g;

/** The column with the axis's format, when it is one of dates or durations. */
const dateColumn = (text, columns) =>
  columns.find(({date, field, text: own}) =>
    date && own?.replaceAll(`datum[${literal(field)}]`, 'datum.value') === text);

/** Lets the labels of an axis follow its scale. */
function prepareAxis(axis, dimension, spec) {
  const text = axis.encode?.labels?.update?.text;
  if (!Array.isArray(axis.values) || !text?.signal) return;
  dimension.ticks = axis.values;
  dimension.dates = dateColumn(text.signal, spec.usermeta.columns);
  axis.values = {signal: `ticks_${dimension.name}`};
  if (dimension.dates) return;
  const match = [...text.signal.matchAll(decimals)];
  dimension.decimals = Math.max(0, ...match.map((one) => Number(one[2])));
  text.signal = text.signal.replace(decimals, `"$1." + decimals_${dimension.name} + "f"`);
}

function prepareDimension(name, range, plot, spec) {
  const scale = plot.scales?.find((candidate) => candidate.name === name);
  const isContinuous = scale?.type === 'linear' && scale.range === range &&
    Array.isArray(scale.domain) && scale.domain.every(Number.isFinite);
  if (!isContinuous) return null;
  const dimension = {name, range, whole: scale.domain, ticks: [], decimals: 0};
  scale.domain = {signal: `zoom_${name}`};
  for (const axis of plot.axes ?? []) if (axis.scale === name) prepareAxis(axis, dimension, spec);
  spec.signals.push(
    {name: `zoom_${name}`, value: dimension.whole},
    {name: `ticks_${name}`, value: dimension.ticks},
    {name: `decimals_${name}`, value: dimension.decimals});
  return dimension;
}

/** Makes the plot's scales zoomable; returns its continuous dimensions. */
export function prepareZoom(spec) {
  const plot = spec.marks?.[0];
  const isOnePlot = spec.marks?.length === 1 && plot.type === 'group' && !plot.from && !plot.layout &&
    !spec.layout;
  if (!isOnePlot) return [];
  const dimensions = [['x', 'width'], ['y', 'height']]
    .map(([name, range]) => prepareDimension(name, range, plot, spec))
    .filter(Boolean);
  if (dimensions.length === 0) return [];
  spec.signals.push({name: 'zoomed', value: false});
  const update = {
    width: {signal: 'width'}, height: {signal: 'height'}, clip: {signal: 'zoomed'},
  };
  plot.marks = [{type: 'group', encode: {update}, marks: plot.marks}];
  return dimensions;
}

/** The ticks of a range and how many decimals tell them apart. */
async function ticksOf([low, high], {dates, decimals: least}, spec) {
  if (!dates) {
    const ticks = scaleOf('linear')().domain([low, high]).ticks(mostTicks);
    const step = ticks.length > 1 ? ticks[1] - ticks[0] : high - low;
    return {ticks, decimals: Math.max(least, -Math.floor(Math.log10(step) + 1e-9))};
  }
  const start = /utc|time/.test(dates.text) ? yearOfBrowsers : 0;
  const inBrowser = (seconds) => new Date((seconds - start) * 1000);
  const ticks = scaleOf('utc')().domain([inBrowser(low), inBrowser(high)]).ticks(mostTicks)
    .map((date) => date / 1000 + start);
  const texts = await textsOf(ticks.map((tick) => ({[dates.field]: tick})), [dates], spec.config);
  return {ticks: ticks.filter((_, i) => texts[i][0] !== texts[i - 1]?.[0]), decimals: 0};
}

/** The range scaled about a value, or moved, and kept within the whole. */
function within([low, high], [wholeLow, wholeHigh]) {
  const span = Math.min(high - low, wholeHigh - wholeLow);
  const start = Math.min(Math.max(low, wholeLow), wholeHigh - span);
  return [start, start + span];
}

function scaled([low, high], {whole}, factor, share) {
  const least = (whole[1] - whole[0]) / deepest;
  const span = Math.max((high - low) * factor, least);
  const center = low + (high - low) * share;
  return within([center - span * share, center + span * (1 - share)], whole);
}

class Zoom {
  constructor(page, dimensions) {
    Object.assign(this, {page, dimensions});
  }

  get isWhole() {
    return this.dimensions.every(({name, whole}) => this.rangeOf(name).every((end, i) => end === whole[i]));
  }

  rangeOf(name) {
    return this.page.view.signal(`zoom_${name}`);
  }

  /** Sets a range for each dimension by its former one. */
  async change(rangeFor) {
    const {view, spec, changed} = this.page;
    for (const dimension of this.dimensions) {
      const range = rangeFor(dimension, this.rangeOf(dimension.name));
      const isWhole = range.every((end, i) => end === dimension.whole[i]);
      const {ticks, decimals} = isWhole ? dimension : await ticksOf(range, dimension, spec);
      view.signal(`zoom_${dimension.name}`, range)
        .signal(`ticks_${dimension.name}`, ticks)
        .signal(`decimals_${dimension.name}`, decimals);
    }
    await view.signal('zoomed', !this.isWhole).runAsync();
    changed();
  }

  by(factor, shares = {x: 0.5, y: 0.5}) {
    return this.change((dimension, range) => scaled(range, dimension, factor, shares[dimension.name]));
  }

  /** Moves by shares of what is seen. */
  move(shares) {
    return this.change((dimension, [low, high]) => {
      const way = (high - low) * shares[dimension.name];
      return within([low + way, high + way], dimension.whole);
    });
  }

  reset() {
    return this.change(({whole}) => whole);
  }
}

/** Where an event lies in the plot, as shares of its width and from its bottom. */
function place(event, container, view) {
  const matrix = container.querySelector('svg > g').getScreenCTM().inverse();
  const point = new DOMPoint(event.clientX, event.clientY).matrixTransform(matrix);
  return {x: point.x / view.width(), y: 1 - point.y / view.height()};
}

const isInside = ({x, y}) => x >= 0 && x <= 1 && y >= 0 && y <= 1;

function addDragging(zoom, container) {
  let from = null;
  container.addEventListener('pointerdown', (event) => {
    const at = place(event, container, zoom.page.view);
    if (event.button === 0 && !zoom.isWhole && isInside(at)) from = at;
  });
  // Dragging selects no texts.
  container.addEventListener('mousedown', (event) => {
    if (!from) return;
    event.preventDefault();
    container.focus();
  });
  container.addEventListener('pointermove', async (event) => {
    if (!from) return;
    const at = place(event, container, zoom.page.view);
    const way = {x: from.x - at.x, y: from.y - at.y};
    if (Math.hypot(way.x, way.y) < 0.005) return;
    from = at;
    await zoom.move(way);
  });
  for (const end of ['pointerup', 'pointerleave'])
    container.addEventListener(end, () => (from = null));
}

const step = 0.7;
const keys = {
  '+': (zoom) => zoom.by(step),
  '-': (zoom) => zoom.by(1 / step),
  '0': (zoom) => zoom.reset(),
};
const moves = {
  ArrowLeft: {x: -0.1, y: 0}, ArrowRight: {x: 0.1, y: 0},
  ArrowUp: {x: 0, y: 0.1}, ArrowDown: {x: 0, y: -0.1},
};

function addKeys(zoom, container) {
  container.addEventListener('keydown', (event) => {
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    const act = event.shiftKey && moves[event.key] ? () => zoom.move(moves[event.key]) : keys[event.key];
    if (!act) return;
    event.preventDefault();
    act(zoom);
  });
}

export function addZoom(page, container) {
  if (page.zoom.length === 0) return;
  const zoom = new Zoom(page, page.zoom);
  container.addEventListener('dblclick', () => zoom.reset());
  container.addEventListener('wheel', (event) => {
    const at = place(event, container, page.view);
    if (!(event.ctrlKey || event.metaKey) || !isInside(at)) return;
    event.preventDefault();
    zoom.by(event.deltaY < 0 ? step : 1 / step, at);
  }, {passive: false});
  addDragging(zoom, container);
  addKeys(zoom, container);
  const buttons = [['Zoom in', '+'], ['Zoom out', '-'], ['Whole picture', '0']];
  for (const [name, key] of buttons) {
    const button = document.createElement('button');
    button.textContent = word(name);
    button.addEventListener('click', () => keys[key](zoom));
    page.actions.append(button);
  }
  document.getElementById('zoom-keys').hidden = false;
}
