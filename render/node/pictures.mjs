// Draws the charts of chart folders from their Vega text: chart.svg, chart.png and
// chart.pdf beside chart.vg.json. Reads from standard input, as JSON:
//   {"folders": ["charts/0001-penguins", …], "svg": true, "png": true, "pdf": true}
// Tells of each folder by its number when it begins and when it has ended, in a line of JSON
// on standard output, so that who started it knows what was at work should it end early:
//   {"begun": 0}
//   {"ended": 0, "files": ["chart.svg"], "trouble": "why not all are drawn, or null"}
// A terminal on standard error shows how far it is, in a line that is gone at the end.
// Many charts are drawn by several threads: the same files, whoever draws them.

import {readFileSync, renameSync, rmSync, writeFileSync, writeSync} from 'node:fs';
import {basename, join} from 'node:path';
import {setImmediate} from 'node:timers/promises';
import {isMainThread} from 'node:worker_threads';
import {parse, resetSVGDefIds, textMetrics, View} from 'vega';
import {magnificationOf, pngWithTexts, textsOfPicture, wholeSvg, withLetters} from '../page/pictureTexts.js';
import {nameFaces} from './faces.mjs';
import {fontsOf, missingFamilies} from './fonts.mjs';
import {checkSize, checkSvg} from './limits.mjs';
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

/** Draws a chart; calls `wrote` with the name of each file. */
async function draw(folder, {svg, png, pdf}, wrote) {
  const write = (name, bytes) => {
    writeWhole(join(folder, name), bytes);
    wrote(name);
  };
  const spec = JSON.parse(readFileSync(join(folder, 'chart.vg.json'), 'utf8'));
  const magnification = magnificationOf(spec);
  checkSize(spec.width * magnification, spec.height * magnification);
  dropTooltips(spec);
  // The ids in a picture count from one, whatever was drawn before it.
  resetSVGDefIds();
  const view = new View(parse(spec), {renderer: 'none'});
  const drawn = await view.toSVG(magnification);
  checkSvg(drawn);
  const picture = wholeSvg(drawn, spec);
  if (svg) write('chart.svg', withLetters(picture, fontsOfPage(folder)));
  if (png) {
    const {Resvg} = await import('@resvg/resvg-js');
    const named = nameFaces(anchorClippedGroups(picture));
    const options = {fitTo: {mode: 'zoom', value: pngScale}, font: fontsOf(named)};
    const pixels = new Resvg(named, options).render().asPng();
    write('chart.png', pngWithTexts(pixels, textsOfPicture(spec)));
  }
  if (pdf) {
    const {pdfOf} = await import('./chartxml-pdf.mjs');
    write('chart.pdf', await pdfOf(picture, textsOfPicture(spec)));
  }
}

/** Draws a chart; gives the files that are written and what went wrong, or null. */
async function tried({folder, formats}) {
  const files = [];
  try {
    await draw(folder, formats, (name) => files.push(name));
    return {files, trouble: null};
  } catch (error) {
    return {files, trouble: String(error?.message ?? error)};
  }
}

/** One after the other in this thread. */
async function drawInTurn(tasks, begun, ended) {
  for (const [index, task] of tasks.entries()) {
    begun(index);
    ended(index, await tried(task));
    // The bitmaps of a picture are given back between two turns of the event loop.
    await setImmediate();
  }
}

const tell = (event) => writeSync(1, `${JSON.stringify(event)}\n`);

async function drawAll() {
  const {folders, ...formats} = JSON.parse(readFileSync(0, 'utf8'));
  if ((formats.svg || formats.png) && missingFamilies.length > 0)
    console.error(`chartxml: fonts that are not installed: ${missingFamilies.join(', ')}; other fonts take their place in pictures, or characters are missing`);
  const showLine = (text) => process.stderr.isTTY && process.stderr.write(`\r\x1B[K${text}`);
  const tasks = folders.map((folder) => ({folder, formats}));
  let done = 0;
  const begun = (index) => tell({begun: index});
  const ended = (index, answer) => {
    tell({ended: index, ...answer});
    showLine(`[${++done}/${folders.length}] ${basename(folders[index])}, pictures`);
  };
  const threads = threadsFor(tasks.length, worthwhile(formats));
  if (threads > 1) await spread(tasks, threads, new URL(import.meta.url), begun, ended);
  else await drawInTurn(tasks, begun, ended);
  showLine('');
}

if (isMainThread) await drawAll();
else serve(tried);
