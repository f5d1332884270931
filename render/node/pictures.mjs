// Draws the charts of chart folders from their Vega text: chart.svg, chart.png and
// chart.pdf beside chart.vg.json. Reads from standard input, as JSON:
//   {"folders": ["charts/0001-penguins", …], "svg": true, "png": true, "pdf": true}
// Names the folders that it could not draw on standard error, in this order, and ends with
// status 1 then; a terminal there also shows how far it is, in a line that is gone at the
// end. Many charts are drawn by several threads: the same files, whoever draws them.

import {readFileSync, renameSync, rmSync, writeFileSync} from 'node:fs';
import {basename, join} from 'node:path';
import {setImmediate} from 'node:timers/promises';
import {isMainThread} from 'node:worker_threads';
import {parse, resetSVGDefIds, textMetrics, View} from 'vega';
import {magnificationOf, pngWithTexts, textsOfPicture, wholeSvg} from '../page/pictureTexts.js';
import {nameFaces} from './faces.mjs';
import {fontsOf, missingFamilies} from './fonts.mjs';
import {serve, spread, threadsFor} from './spread.mjs';
import {textWidth} from './textWidth.mjs';

textMetrics.width = (item, text) => textWidth(text, item.fontSize ?? 11, item.fontWeight);

const pngScale = 2;

/**
 * So many charts are drawn sooner by a thread of their own: each has to load Vega and gets
 * fast by and by, which bitmaps and PDF soon make up for.
 */
const worthwhile = ({png, pdf}) => (png || pdf ? 8 : 64);

/** Writes a file so that it appears whole or not at all. */
function writeWhole(file, bytes) {
  const aside = `${file}.${process.pid}.tmp`;
  try {
    writeFileSync(aside, bytes);
    renameSync(aside, file);
  } catch (error) {
    rmSync(aside, {force: true});
    throw error;
  }
}

/**
 * The renderer ends the process when a clipped group lies wholly outside the
 * picture. A point at the group's origin that nobody sees keeps it inside.
 */
const anchorClippedGroups = (svg) =>
  svg.replaceAll(
    /<g[^>]* clip-path="[^>]*>/g,
    (group) => `${group}<path d="M0,0h1v1h-1Z" fill="#000" fill-opacity="0"/>`,
  );

/** Pictures have none, but Vega would make the text of each mark. */
function dropTooltips({marks = []}) {
  for (const mark of marks) {
    delete mark.encode?.update?.tooltip;
    dropTooltips(mark);
  }
}

/** The letters of a picture, which its page holds: bitmaps and PDF take theirs from files. */
const fontsOfPage = (folder) =>
  /<style id="fonts">([^<]*)/.exec(readFileSync(join(folder, 'chart.html'), 'utf8'))[1];

async function draw(folder, {svg, png, pdf}) {
  const spec = JSON.parse(readFileSync(join(folder, 'chart.vg.json'), 'utf8'));
  dropTooltips(spec);
  // The ids in a picture count from one, whatever was drawn before it.
  resetSVGDefIds();
  const view = new View(parse(spec), {renderer: 'none'});
  const drawn = await view.toSVG(magnificationOf(spec));
  const picture = wholeSvg(drawn, spec);
  if (svg) writeWhole(join(folder, 'chart.svg'), wholeSvg(drawn, spec, fontsOfPage(folder)));
  if (png) {
    const {Resvg} = await import('@resvg/resvg-js');
    const named = nameFaces(anchorClippedGroups(picture));
    const options = {fitTo: {mode: 'zoom', value: pngScale}, font: fontsOf(named)};
    const pixels = new Resvg(named, options).render().asPng();
    writeWhole(join(folder, 'chart.png'), pngWithTexts(pixels, textsOfPicture(spec)));
  }
  if (pdf) {
    const {pdfOf} = await import('./chartxml-pdf.mjs');
    writeWhole(join(folder, 'chart.pdf'), await pdfOf(picture, textsOfPicture(spec)));
  }
}

/** Draws a chart; gives what went wrong, or null. */
async function tried({folder, formats}) {
  try {
    await draw(folder, formats);
    return null;
  } catch (error) {
    return error.message;
  }
}

/** One after the other in this thread. */
async function drawInTurn(tasks, ended) {
  for (const [index, task] of tasks.entries()) {
    ended(index, await tried(task));
    // The bitmaps of a picture are given back between two turns of the event loop.
    await setImmediate();
  }
}

async function drawAll() {
  const missing = missingFamilies();
  const {folders, ...formats} = JSON.parse(readFileSync(0, 'utf8'));
  if ((formats.svg || formats.png) && missing.length > 0)
    console.error(`chartxml: fonts that are not installed: ${missing.join(', ')}; other fonts take their place in pictures, or characters are missing`);
  const showLine = (text) => process.stderr.isTTY && process.stderr.write(`\r\x1B[K${text}`);
  const tasks = folders.map((folder) => ({folder, formats}));
  const troubles = [];
  let done = 0;
  const ended = (index, trouble) => {
    troubles[index] = trouble;
    showLine(`[${++done}/${folders.length}] ${basename(folders[index])}, pictures`);
  };
  const threads = threadsFor(tasks.length, worthwhile(formats));
  if (threads > 1) await spread(tasks, threads, new URL(import.meta.url), ended);
  else await drawInTurn(tasks, ended);
  showLine('');
  troubles.forEach((trouble, index) => {
    if (trouble === null) return;
    console.error(`chartxml: ${folders[index]}: the picture cannot be drawn: ${trouble}`);
    process.exitCode = 1;
  });
}

if (isMainThread) await drawAll();
else serve(tried);
