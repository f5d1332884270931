import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {test} from 'node:test';
import {folders} from './names.mjs';
import {assertAccessible, saved, until, withChart} from './support.mjs';

const bars = '#chart .mark-rect.role-mark path';
const paper = (page) => page.$eval('#chart svg', (svg) => getComputedStyle(svg).backgroundColor);
const white = 'rgb(255, 255, 255)';
const black = 'rgb(22, 24, 27)';

/** How many pixels of a picture are nearly black, nearly white, and neither nor grey. */
const pixelsOf = (page, url, [x, y, width, height]) =>
  page.evaluate(async ({url, x, y, width, height}) => {
    const image = new Image();
    image.src = url;
    await image.decode();
    const canvas = Object.assign(document.createElement('canvas'), {width: image.width, height: image.height});
    const context = canvas.getContext('2d');
    context.drawImage(image, 0, 0);
    const {data} = context.getImageData(x, y, width, height);
    const count = {dark: 0, light: 0, colored: 0};
    for (let i = 0; i < data.length; i += 4) {
      const [red, green, blue] = data.subarray(i, i + 3);
      if (red !== green || green !== blue) ++count.colored;
      else if (red < 100) ++count.dark;
      else if (red > 200) ++count.light;
    }
    return count;
  }, {url, x, y, width, height});

const dataUrl = (file) => `data:image/png;base64,${readFileSync(file).toString('base64')}`;

/** The second group is hatched: lines and paper, no color. */
function assertHatched({dark, light, colored}) {
  assert.equal(colored, 0);
  assert.ok(dark > 100 && light > 2 * dark && light < 12 * dark, JSON.stringify({dark, light}));
}

test('black and white is hatched in the page and in what it saves, light for every reader', () =>
  withChart(folders.print, async (page) => {
    assert.equal(await paper(page), white);
    const fills = await page.$$eval(bars, (all) => all.map((bar) => bar.getAttribute('fill')));
    assert.deepEqual(fills, ['#cfcfcf', 'url(#chartxml-rising)', '#cfcfcf', 'url(#chartxml-rising)']);
    const box = await page.locator(bars).nth(1).boundingBox();
    const inner = {x: box.x + 4, y: box.y + 4, width: 40, height: 40};
    const shot = (await page.screenshot({clip: inner})).toString('base64');
    assertHatched(await pixelsOf(page, `data:image/png;base64,${shot}`, [0, 0, 40, 40]));
    const svg = await page.locator('#chart svg').boundingBox();
    const at = [(box.x - svg.x) * 2 + 8, (box.y - svg.y) * 2 + 8, 80, 80].map(Math.round);
    assertHatched(await pixelsOf(page, dataUrl(await saved(page, 'Save as PNG')), at));
    const text = readFileSync(await saved(page, 'Save as SVG'), 'utf8');
    const [, own] = /<\/style><defs><pattern id="([^"]+)chartxml-rising"/.exec(text);
    assert.ok(text.includes(` fill="url(#${own}chartxml-rising)"`));
    await assertAccessible(page);
  }, {colorScheme: 'dark'}));

test('a dark chart is dark for every reader, light on paper, and saved dark', () =>
  withChart(folders.dark, async (page) => {
    assert.equal(await paper(page), black);
    await page.evaluate("dispatchEvent(new Event('beforeprint'))");
    assert.equal(await paper(page), white);
    await page.evaluate("dispatchEvent(new Event('afterprint'))");
    assert.equal(await paper(page), black);
    assert.match(readFileSync(await saved(page, 'Save as SVG'), 'utf8'), /fill="#16181b"/);
  }, {colorScheme: 'light'}));

test('a presentation is large, follows the reader, and is walked through where its marks are', () =>
  withChart(folders.presentation, async (page) => {
    assert.equal(await paper(page), black);
    const size = await page.$eval('#chart svg', (svg) => svg.getBoundingClientRect().width / svg.viewBox.baseVal.width);
    assert.ok(Math.abs(size - 1.75) < 0.3, String(size)); // as wide as the page has room
    await page.focus('#chart');
    await page.keyboard.press('ArrowRight');
    await until(page, "document.getElementById('live').textContent !== ''");
    const ring = await page.locator('.ring').boundingBox();
    const bar = await page.locator(bars).first().boundingBox();
    assert.ok(Math.abs(ring.x + ring.width / 2 - bar.x - bar.width / 2) < 3);
    const svg = readFileSync(await saved(page, 'Save as SVG'), 'utf8');
    const [, width, whole] = /<svg[^>]* width="(\S+)".* viewBox="0 0 (\S+)/.exec(svg);
    assert.equal(Number(width), 1.75 * Number(whole));
  }, {colorScheme: 'dark'}));

test('the data of every source are shown, with their labels, and saved', () =>
  withChart(folders.print, async (page) => {
    await page.locator('#data summary').click();
    await page.waitForFunction("document.querySelectorAll('#data tbody tr').length === 6");
    assert.deepEqual(await page.locator('#data h3').allInnerTexts(), ['Data source other', 'Data source source0']);
    const region = page.getByRole('region', {name: 'Data source other'});
    assert.equal(await region.locator('th').count(), 50);
    assert.match(await region.locator('tbody tr').first().innerText(), /^First\t0\t0\.125\t0\.25\t/);
    assert.equal(await page.locator('#data p').first().innerText(), 'The first 50 of 61 columns; all are in the saved CSV.');
    await assertAccessible(page);
    const lines = readFileSync(await saved(page, 'Save as CSV (other)'), 'utf8').split('\r\n');
    assert.equal(lines[0].split(',').length, 61);
    assert.match(lines[1], /^First,0,0\.125,.*,7\.375$/);
    const first = readFileSync(await saved(page, 'Save as CSV (source0)'), 'utf8').split('\r\n');
    assert.deepEqual(first.slice(0, 2), ['\ufeffX,G,Y', 'a,p,4']);
  }));
