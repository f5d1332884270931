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

/**
 * Draws into the element and follows the reader's choice of light or dark; paper is
 * always light.
 */
export async function drawChart(runtime, container) {
  const dark = matchMedia('(prefers-color-scheme: dark)');
  const view = new View(runtime, {
    container,
    renderer: 'svg',
    hover: true,
    expr: expressionInterpreter,
  });
  const follow = (isDark) => {
    const theme = isDark ? 'dark' : 'light';
    view.tooltip(new Handler({theme, formatTooltip}).call);
    return view.signal('dark', isDark);
  };
  await follow(dark.matches).runAsync();
  dark.addEventListener('change', () => follow(dark.matches).runAsync());
  addEventListener('beforeprint', () => follow(false).run());
  addEventListener('afterprint', () => follow(dark.matches).run());
  return view;
}
