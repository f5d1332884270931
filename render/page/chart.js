import {View} from 'vega';
import {expressionInterpreter} from 'vega-interpreter';
import {Handler} from 'vega-tooltip';

const escapes = {'&': '&amp;', '<': '&lt;', '>': '&gt;', '"': '&quot;', "'": '&#39;'};
const escape = (text) => String(text).replace(/[&<>"']/g, (c) => escapes[c]);

/** A tooltip's pairs of title and text as a table. */
function formatTooltip(pairs) {
  const row = ([title, text]) =>
    `<tr><td class="key">${escape(title)}</td><td class="value">${escape(text)}</td></tr>`;
  return `<table>${pairs.map(row).join('')}</table>`;
}

/** Draws into the element and follows the reader's choice of light or dark. */
export async function drawChart(runtime, container) {
  const dark = matchMedia('(prefers-color-scheme: dark)');
  const theme = () => (dark.matches ? 'dark' : 'light');
  const tooltip = (options) => new Handler({...options, formatTooltip});
  const view = new View(runtime, {
    container,
    renderer: 'svg',
    hover: true,
    expr: expressionInterpreter,
    tooltip: tooltip({theme: theme()}).call,
  });
  await view.signal('dark', dark.matches).runAsync();
  dark.addEventListener('change', () => {
    view.tooltip(tooltip({theme: theme()}).call);
    view.signal('dark', dark.matches).runAsync();
  });
  return view;
}
