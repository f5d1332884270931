import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {join} from 'node:path';
import {test} from 'node:test';
import {attack, folders, nameOfHostile} from './names.mjs';
import {assertAccessible, charts, saved, until, urlOf, withChart, withPage} from './support.mjs';

const index = urlOf('index.html');
const shown = (page) => page.$$eval('#charts > li', (cards) => cards.filter((card) => !card.hidden).length);

for (const colorScheme of ['light', 'dark'])
  test(`axe finds nothing in the gallery in ${colorScheme}`, () =>
    withPage(index, async (page) => {
      await page.locator('summary').first().click();
      await assertAccessible(page);
    }, {colorScheme}));

test('the gallery shows titles, pictures, descriptions and sources', () =>
  withPage(index, async (page) => {
    const card = page.locator('#charts > li').first();
    assert.equal(await card.locator('h2').innerText(), 'Body mass and flipper length of penguins');
    const texts = await card.locator('p').allInnerTexts();
    assert.match(texts[0], /^All penguins: mass = /);
    assert.match(texts[1], /^Scatter plot of body mass/);
    assert.equal(texts[2], '0001-penguins');
    await until(page, "document.querySelector('#charts img').naturalWidth > 0");
    await card.locator('summary').click();
    assert.match(await card.locator('pre').innerText(), /^! Are penguins with longer flippers heavier/);
    await card.locator('h2 a').click();
    await page.waitForURL(/0001-penguins\/chart\.html$/);
    await page.waitForSelector('#trouble', {state: 'detached'});
  }));

test('the search finds names and descriptions', () =>
  withPage(index, async (page) => {
    assert.equal(await page.textContent('#found'), '10 of 10 charts');
    await page.getByLabel('Search names and descriptions').fill('  FLIPPER body');
    assert.equal(await shown(page), 1);
    assert.equal(await page.textContent('#found'), '1 of 10 charts');
    await page.getByLabel('Search names and descriptions').fill('plot f90 penguins scatter');
    assert.equal(await shown(page), 1);
    await page.getByLabel('Search names and descriptions').fill('no such');
    assert.equal(await shown(page), 0);
  }));

test('the gallery shows the charts of a language', () =>
  withPage(index, async (page) => {
    const choice = page.getByLabel('Language');
    const names = await choice.locator('option').allTextContents();
    assert.deepEqual(names.filter((name) => name !== attack).sort(), ['All', 'Deutsch', 'English', '日本語']);
    await choice.selectOption('ja');
    assert.equal(await page.textContent('#found'), '2 of 10 charts');
    await page.getByLabel('Search names and descriptions').fill('消費支出');
    assert.equal(await shown(page), 1);
  }));

test("the gallery speaks the reader's language", () =>
  withPage(index, async (page) => {
    assert.equal(await page.textContent('h1'), '图表');
    assert.equal(await page.getAttribute('html', 'lang'), 'zh-cn');
  }, {locale: 'zh-CN'}));

test('pictures of many charts share no id, and one drawn again has the same bytes', () =>
  withChart(folders.print, async (page) => {
    const idsOf = (svg) => [...svg.matchAll(/<[^>]* id="([^"]*)"/g)].map(([, id]) => id);
    const drawn = [folders.penguins, folders.dates, folders.print, folders.presentation]
      .map((folder) => readFileSync(join(charts, folder, 'chart.svg'), 'utf8'));
    const all = drawn.flatMap((svg) => [...new Set(idsOf(svg))]);
    assert.ok(all.length > 4);
    assert.equal(new Set(all).size, all.length);
    for (const svg of drawn)
      for (const [, id] of svg.matchAll(/url\(#([^)]*)\)/g)) assert.ok(idsOf(svg).includes(id), id);
    const [first, again] = [await saved(page, 'Save as SVG'), await saved(page, 'Save as SVG')]
      .map((file) => readFileSync(file, 'utf8'));
    assert.equal(first, again);
  }));

test('hostile texts are texts on a chart page', () =>
  withChart(folders.hostile, async (page) => {
    assert.equal(await page.textContent('h1'), attack);
    assert.equal(await page.textContent('#name'), nameOfHostile);
    assert.equal(await page.textContent('figcaption'), attack);
    await page.locator('#data summary').click();
    await page.waitForSelector('#data tbody tr');
    assert.equal(await page.locator('#data tbody td').nth(2).textContent(), attack);
    await page.locator('.mark-symbol.role-mark path').first().hover({force: true});
    await page.waitForSelector('#vg-tooltip-element.visible');
    assert.equal(await page.locator('#vg-tooltip-element img').count(), 0);
    for (const box of await page.locator('fieldset input').all()) await box.uncheck();
    await until(page, "document.querySelectorAll('.mark-symbol.role-mark path').length === 0");
    await page.locator('fieldset input').last().check();
    await page.focus('#chart');
    await page.keyboard.press('ArrowRight');
    await until(page, "document.getElementById('live').textContent !== ''");
    assert.match(readFileSync(await saved(page, 'Save as CSV'), 'utf8'), /\r\n3,5,'=1\+1\r\n/);
    assert.match(readFileSync(await saved(page, 'Save as SVG'), 'utf8'), /<title>&lt;\/script&gt;/);
  }));

test('hostile texts are texts in the gallery', () =>
  withPage(index, async (page) => {
    const card = page.locator('#charts > li').nth(3);
    assert.equal(await card.locator('h2 a').textContent(), attack);
    assert.equal(await card.locator('p').first().textContent(), attack);
    await card.locator('summary').click();
    assert.equal(await card.locator('pre').textContent(), attack);
    assert.equal(await page.locator('#charts img:not([src$=".svg"])').count(), 0);
  }));
