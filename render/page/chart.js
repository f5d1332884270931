import {View} from 'vega';
import {expressions} from './expressions.js';
import {patternsOf} from './patterns.js';
import {magnificationOf} from './pictureTexts.js';
import {tooltipHandler} from './tooltip.js';

/** Narrower than this its letters cannot be read: the picture is scrolled instead. */
const leastWidth = 640;

/** Shows the picture as large as its theme says, and as small as the page needs. */
function fitIn(container, spec) {
  const {style, width} = container.querySelector('svg');
  const whole = width.baseVal.value * magnificationOf(spec);
  style.width = `${whole}px`;
  style.minWidth = `${Math.min(whole, leastWidth)}px`;
}

/** Makes the patterns known to the page; a picture of no size is there all the same. */
function placePatterns(spec) {
  const patterns = patternsOf(spec);
  if (!patterns) return;
  const place = document.createElement('div');
  place.innerHTML = `<svg class="patterns" aria-hidden="true" width="0" height="0">${patterns}</svg>`;
  document.body.append(place);
}

/**
 * Draws into the element, and follows the reader's choice of light or dark unless the
 * theme has its own; paper is always light.
 */
export async function drawChart(runtime, container, spec) {
  const {followsReader = true} = spec.usermeta.theme ?? {};
  const dark = matchMedia('(prefers-color-scheme: dark)');
  const view = new View(runtime, {
    container,
    renderer: 'svg',
    hover: true,
    expr: expressions,
  });
  const own = spec.signals.find(({name}) => name === 'dark').value;
  const isDarkNow = () => (followsReader ? dark.matches : own);
  const follow = (isDark) => {
    const theme = isDark ? 'dark' : 'light';
    view.tooltip(tooltipHandler(container, theme));
    return view.signal('dark', isDark);
  };
  placePatterns(spec);
  await follow(isDarkNow()).runAsync();
  fitIn(container, spec);
  dark.addEventListener('change', () => follow(isDarkNow()).runAsync());
  addEventListener('beforeprint', () => follow(false).run());
  addEventListener('afterprint', () => follow(isDarkNow()).run());
  return view;
}
