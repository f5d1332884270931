// What a mark tells of itself: pairs of a title and a text, which its tooltip makes. Lines
// and areas are marks of many places, each with a tooltip of its own.

import {Handler} from 'vega-tooltip';

const escapes = {'&': '&amp;', '<': '&lt;', '>': '&gt;', '"': '&quot;', "'": '&#39;'};
const escape = (text) => String(text).replace(/[&<>"']/g, (c) => escapes[c]);

/** The pairs of an item; those without a text are left out. */
const pairsOf = (tell) => tell().filter(([, text]) => text != null && String(text).trim() !== '');

/** The same as one text. */
export const textOf = (tell) =>
  pairsOf(tell).map(([title, text]) => (title ? `${title}: ${text}` : text)).join('; ');

function formatTooltip(tell) {
  const row = ([title, text]) =>
    `<tr><td class="key">${escape(title)}</td><td class="value">${escape(text)}</td></tr>`;
  return `<table>${pairsOf(tell).map(row).join('')}</table>`;
}

/** Where a group lies in the picture. */
function originOf(group) {
  let x = 0;
  let y = 0;
  for (let at = group; at; at = at.mark?.group) {
    x += at.x ?? 0;
    y += at.y ?? 0;
  }
  return {x, y};
}

/** Of a line or an area the place that is nearest to the pointer, along the way it goes. */
function nearest({mark}, event, container) {
  const matrix = container.querySelector('svg > g').getScreenCTM().inverse();
  const at = new DOMPoint(event.clientX, event.clientY).matrixTransform(matrix);
  const origin = originOf(mark.group);
  const goesUp = mark.items[0].orient === 'horizontal';
  const wayTo = ({x, y}) =>
    goesUp ? Math.abs(y - at.y + origin.y)
      : Math.abs(x - at.x + origin.x) + Math.abs(y - at.y + origin.y) / 1000;
  const shown = mark.items.filter(({defined}) => defined !== false);
  return shown.reduce((best, item) => (wayTo(item) < wayTo(best) ? item : best), shown[0]);
}

/**
 * For Vega's View: shows the tooltips of marks in a picture within `container`. Vega itself
 * finds places of a line only where the pointer is upon them.
 */
export function tooltipHandler(container, theme) {
  const handler = new Handler({theme, formatTooltip});
  return (vega, event, item, tell) => {
    const [first] = [event.target.__data__].flat();
    const isOfMany = event.type !== 'mouseout' && /^(line|area)$/.test(first?.mark?.marktype);
    handler.call(vega, event, item, isOfMany ? nearest(first, event, container).tooltip : tell);
  };
}
