// Draws the charts of chart folders from their Vega text: chart.svg, chart.png and
// chart.pdf beside chart.vg.json. Reads from standard input, as JSON:
//   {"folders": ["charts/0001-penguins", …], "svg": true, "png": true, "pdf": true}
// Names each folder that it could not draw on standard error, and ends with status 1
// then; a terminal there also shows how far it is, in a line that is gone at the end.

import {readFileSync, renameSync, rmSync, writeFileSync} from 'node:fs';
import {basename, join} from 'node:path';
import {setImmediate} from 'node:timers/promises';
import {parse, resetSVGDefIds, textMetrics, View} from 'vega';
import {magnificationOf, pngWithTexts, textsOfPicture, wholeSvg} from '../page/pictureTexts.js';
import {nameFaces} from './faces.mjs';
import {fontsOf, missingFamilies} from './fonts.mjs';
import {textWidth} from './textWidth.mjs';

textMetrics.width = (item, text) => textWidth(text, item.fontSize ?? 11, item.fontWeight);

const pngScale = 2;

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

async function draw(folder, {svg, png, pdf}) {
  const spec = JSON.parse(readFileSync(join(folder, 'chart.vg.json'), 'utf8'));
  // The ids in a picture count from one, whatever was drawn before it.
  resetSVGDefIds();
  const view = new View(parse(spec), {renderer: 'none'});
  const picture = wholeSvg(await view.toSVG(magnificationOf(spec)), spec);
  if (svg) writeWhole(join(folder, 'chart.svg'), picture);
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

const missing = missingFamilies();
const {folders, ...formats} = JSON.parse(readFileSync(0, 'utf8'));
if (formats.png && missing.length > 0)
  console.error(`chartxml: fonts that are not installed: ${missing.join(', ')}; other fonts take their place in PNG pictures, or characters are missing`);
const showLine = (text) => process.stderr.isTTY && process.stderr.write(`\r\x1B[K${text}`);
for (const [index, folder] of folders.entries()) {
  showLine(`[${index + 1}/${folders.length}] ${basename(folder)}, pictures`);
  try {
    await draw(folder, formats);
  } catch (error) {
    showLine('');
    console.error(`chartxml: ${folder}: the picture cannot be drawn: ${error.message}`);
    process.exitCode = 1;
  }
  // The bitmaps of a picture are given back between two turns of the event loop.
  await setImmediate();
}
showLine('');
