// Screenshots of charts against those that were looked at, both small: letters and lines
// that are drawn a little otherwise on another machine differ less than a part that is missing.
//
// RENEW=1 node --test tests/browser/pictures.test.mjs   takes those that there are now.
import assert from 'node:assert/strict';
import {existsSync, mkdirSync, readFileSync, writeFileSync} from 'node:fs';
import {join} from 'node:path';
import {test} from 'node:test';
import {pathToFileURL} from 'node:url';
import {folders} from './names.mjs';
import {charts, until, withPage} from './support.mjs';

const references = join(import.meta.dirname, 'pictures');
const width = 240;
const mostMean = 0.15; // of 255, over all pixels; a missing axis title makes 0.22
const mostFar = 0.001; // of all pixels, that are farther than this apart:
const far = 64;

const pictures = [
  ['bars', '../procedures/islands/0001-islands'],
  ['stacked', '../procedures/islands/0002-islands'],
  ['facets', '../procedures/islands/0003-islands'],
  ['pie', '../procedures/titanic/0001-titanic'],
  ['boxes', '../procedures/distributions/0003-distributions'],
  ['histogram', '../procedures/distributions/0001-distributions'],
  ['hexagons', '../procedures/diamonds/0001-diamonds'],
  ['space', '../procedures/planes/0001-planes'],
  ['around', '../procedures/seasons/0002-seasons'],
  ['survival', '../procedures/lung/0001-lung'],
  ['japanese', folders.dates],
  ['print', folders.print],
  ['dark', folders.dark],
  ['dark-reader', '../procedures/islands/0001-islands', 'dark'],
];

/** A PNG in the width of the references. */
const small = (page, png) => page.evaluate(async ({png, width}) => {
  const image = new Image();
  image.src = `data:image/png;base64,${png}`;
  await image.decode();
  const height = Math.round((image.height / image.width) * width);
  const canvas = Object.assign(document.createElement('canvas'), {width, height});
  const context = canvas.getContext('2d');
  context.imageSmoothingQuality = 'high';
  context.drawImage(image, 0, 0, width, height);
  return canvas.toDataURL('image/png').split(',')[1];
}, {png, width});

/** How far two PNG are apart. */
const difference = (page, one, other) => page.evaluate(async ({pngs, far}) => {
  const [first, second] = await Promise.all(pngs.map(async (png) => {
    const image = new Image();
    image.src = `data:image/png;base64,${png}`;
    await image.decode();
    const canvas = Object.assign(document.createElement('canvas'), {width: image.width, height: image.height});
    const context = canvas.getContext('2d');
    context.drawImage(image, 0, 0);
    return context.getImageData(0, 0, image.width, image.height);
  }));
  if (first.height !== second.height) return {heights: [first.height, second.height]};
  let sum = 0;
  let count = 0;
  for (let i = 0; i < first.data.length; i += 4) {
    const apart = Math.max(...[0, 1, 2].map((c) => Math.abs(first.data[i + c] - second.data[i + c])));
    sum += apart;
    if (apart > far) ++count;
  }
  return {mean: sum / (first.data.length / 4), share: count / (first.data.length / 4)};
}, {pngs: [one, other], far});

for (const [name, folder, colorScheme = 'light'] of pictures)
  test(`the picture ${name} looks as it did`, () =>
    withPage(pathToFileURL(join(charts, folder, 'chart.html')).href, async (page) => {
      await until(page, "document.getElementById('trouble') === null");
      const shot = await page.locator('#chart svg').screenshot();
      const now = await small(page, shot.toString('base64'));
      const file = join(references, `${name}.png`);
      if (process.env.RENEW) {
        mkdirSync(references, {recursive: true});
        writeFileSync(file, Buffer.from(now, 'base64'));
        return;
      }
      assert.ok(existsSync(file), `${file} is missing`);
      const apart = await difference(page, readFileSync(file).toString('base64'), now);
      const isAlike = apart.mean <= mostMean && apart.share <= mostFar;
      if (!isAlike) writeFileSync(join(charts, `${name}-now.png`), shot);
      assert.ok(isAlike, `${JSON.stringify(apart)}; now: ${join(charts, `${name}-now.png`)}`);
    }, {colorScheme}));
