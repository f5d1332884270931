import assert from 'node:assert/strict';
import {copyFileSync, mkdtempSync, readFileSync, rmSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join} from 'node:path';
import {test} from 'node:test';
import {pathToFileURL} from 'node:url';
import {folders} from './names.mjs';
import {assertAccessible, charts, saved, until, withChart, withPage} from './support.mjs';

const marks = '.mark-symbol.role-mark path';
const adelies = 151;
const penguins = 342;

const liveText = async (page, pattern) => {
  await until(page, `${pattern}.test(document.getElementById('live').textContent)`);
  return page.textContent('#live');
};
const axisLabels = (page, orient) =>
  page.$$eval('.role-axis', (axes, name) => [...axes.find((axis) => new RegExp(name).test(
    axis.querySelector('[aria-label]')?.getAttribute('aria-label') ?? axis.getAttribute('aria-label')))
    .querySelectorAll('.role-axis-label text')].map(({textContent}) => textContent), orient);

for (const colorScheme of ['light', 'dark'])
  test(`axe finds nothing on a chart page in ${colorScheme}`, () =>
    withChart(folders.penguins, async (page) => {
      await page.locator('#data summary').click();
      await page.getByRole('checkbox', {name: 'Adélie'}).uncheck();
      await assertAccessible(page);
    }, {colorScheme}));

test('a chart follows light and dark, and paper is light', () =>
  withChart(folders.penguins, async (page) => {
    const paper = () => page.$eval('#chart svg', (svg) => getComputedStyle(svg).backgroundColor);
    assert.equal(await paper(), 'rgb(255, 255, 255)');
    await page.emulateMedia({colorScheme: 'dark'});
    await until(page, "getComputedStyle(document.querySelector('#chart svg')).backgroundColor === 'rgb(22, 24, 27)'");
    await page.emulateMedia({colorScheme: 'dark', media: 'print'});
    await page.evaluate("dispatchEvent(new Event('beforeprint'))");
    assert.equal(await paper(), 'rgb(255, 255, 255)');
    assert.equal(await page.isVisible('#actions'), false);
    await page.evaluate("dispatchEvent(new Event('afterprint'))");
    assert.equal(await paper(), 'rgb(22, 24, 27)');
  }));

test('a tooltip shows the values by their formats and labels', () =>
  withChart(folders.penguins, async (page) => {
    await page.locator(marks).first().hover({force: true});
    await page.waitForSelector('#vg-tooltip-element.visible');
    const rows = await page.$$eval('#vg-tooltip-element tr', (all) => all.map((row) =>
      [...row.cells].map(({textContent}) => textContent).join(': ')));
    assert.deepEqual(rows, ['Species: Adélie', 'Flipper length (mm): 181', 'Body mass (g): 3750']);
  }));

test('marks have labels, unless there are too many', async () => {
  const labelled = (page) => page.locator('.mark-symbol.role-mark path[aria-label]').count();
  await withChart(folders.penguins, async (page) => {
    assert.equal(await labelled(page), penguins);
    assert.equal(await page.locator(marks).first().getAttribute('aria-label'),
      'Species,Adélie; Flipper length (mm),181; Body mass (g),3750');
  });
  await withChart(folders.big, async (page) => assert.equal(await labelled(page), 0));
});

test('arrow keys walk through a group and between groups, and a text tells where', () =>
  withChart(folders.penguins, async (page) => {
    await page.focus('#chart');
    await page.keyboard.press('ArrowRight');
    assert.equal(await liveText(page, /1 of 151/),
      'Species: Adélie; Flipper length (mm): 172; Body mass (g): 3150 (1 of 151)');
    await page.keyboard.press('End');
    assert.match(await liveText(page, /151 of 151/), /Flipper length \(mm\): 210/);
    assert.equal(await page.isVisible('.ring'), true);
    await page.keyboard.press('ArrowDown');
    assert.match(await liveText(page, /of 123|of 68/), /Species: (Gentoo|Chinstrap); Flipper length \(mm\): 210/);
    await page.keyboard.press('Escape');
    await until(page, "document.getElementById('live').textContent === ''");
    assert.equal(await page.isVisible('.ring'), false);
  }));

test('the legend and its boxes hide groups', () =>
  withChart(folders.penguins, async (page) => {
    assert.equal(await page.locator(marks).count(), penguins);
    await page.getByRole('checkbox', {name: 'Adélie'}).focus();
    await page.keyboard.press('Space');
    await until(page, `document.querySelectorAll('${marks}').length === ${penguins - adelies}`);
    await page.locator('.role-legend-label text', {hasText: 'Adélie'}).click();
    await until(page, `document.querySelectorAll('${marks}').length === ${penguins}`);
    assert.equal(await page.getByRole('checkbox', {name: 'Adélie'}).isChecked(), true);
  }));

test('a plot is zoomed, moved and reset', () =>
  withChart(folders.penguins, async (page) => {
    const whole = await axisLabels(page, 'Flipper');
    assert.deepEqual(whole, ['170', '180', '190', '200', '210', '220', '230']);
    await page.focus('#chart');
    for (let i = 0; i < 8; ++i) await page.keyboard.press('+');
    await until(page, "document.querySelector('#chart').textContent.includes('201.5')");
    const zoomed = await axisLabels(page, 'Flipper');
    assert.equal(new Set(zoomed).size, zoomed.length);
    await page.keyboard.press('Shift+ArrowRight');
    await until(page, `!document.querySelector('#chart').textContent.includes('${zoomed[0]}${zoomed[1]}')`);
    await page.locator('#chart').dblclick();
    await until(page, "document.querySelector('#chart').textContent.includes('170180190')");
    assert.deepEqual(await axisLabels(page, 'Flipper'), whole);
    const box = await page.locator('#chart svg').boundingBox();
    await page.mouse.move(box.x + box.width / 2, box.y + box.height / 2);
    await page.keyboard.down('Control');
    await page.mouse.wheel(0, -100);
    await page.keyboard.up('Control');
    await until(page, "!document.querySelector('#chart').textContent.includes('170180190')");
    const former = await axisLabels(page, 'Flipper');
    await page.mouse.down();
    await page.mouse.move(box.x + box.width / 4, box.y + box.height / 2, {steps: 3});
    await page.mouse.up();
    await until(page, `!document.querySelector('#chart').textContent.includes('${former.join('')}')`);
    assert.ok(Number((await axisLabels(page, 'Flipper'))[0]) > Number(former[0]));
  }));

test('dates keep places of the calendar, each told once, however near', () =>
  withChart(folders.dates, async (page) => {
    for (const steps of [2, 6, 4]) {
      const former = (await axisLabels(page, '年月')).join();
      for (let i = 0; i < steps; ++i) await page.getByRole('button', {name: '拡大'}).click();
      await page.waitForTimeout(500);
      const now = await axisLabels(page, '年月');
      assert.notEqual(now.join(), former);
      assert.equal(new Set(now).size, now.length);
      assert.match(now[0], /^\d+月 \d{4}$/);
    }
  }));

test('the data are shown a hundred rows at once', () =>
  withChart(folders.penguins, async (page) => {
    await page.locator('#data summary').click();
    await page.waitForSelector('#data tbody tr');
    assert.equal(await page.locator('#data tbody tr').count(), 100);
    assert.equal(await page.textContent('#data p'), 'Rows 1 to 100 of 342');
    for (let i = 0; i < 3; ++i) await page.getByRole('button', {name: 'Next rows'}).click();
    await until(page, "document.querySelector('#data p').textContent === 'Rows 301 to 342 of 342'");
    assert.equal(await page.getByRole('button', {name: 'Next rows'}).isDisabled(), true);
    assert.equal((await page.locator('#data tbody tr').first().innerText()), 'Gentoo\t221\t5450\t5284.29');
  }));

test('everything is reached with Tab, and where one is can be seen', () =>
  withChart(folders.penguins, async (page) => {
    const wanted = await page.$$eval(
      'a, button, input, summary, #chart', (all) => all.filter((one) => one.checkVisibility()).length);
    const reached = new Set();
    for (let i = 0; i < wanted; ++i) {
      await page.keyboard.press('Tab');
      reached.add(await page.evaluate(() => {
        const {outlineStyle, outlineWidth} = getComputedStyle(document.activeElement);
        const isSeen = outlineStyle !== 'none' && outlineWidth !== '0px';
        return isSeen ? [...document.querySelectorAll('*')].indexOf(document.activeElement) : 'not seen';
      }));
    }
    assert.equal(reached.size, wanted);
    assert.equal(reached.has('not seen'), false);
  }));

test('pictures and data are saved as they are seen, with what they show', () =>
  withChart(folders.penguins, async (page) => {
    await page.getByRole('checkbox', {name: 'Adélie'}).uncheck();
    const svg = readFileSync(await saved(page, 'Save as SVG'), 'utf8');
    assert.match(svg, /<svg[^>]*><title>Body mass and flipper length of penguins<\/title><desc>Body mass/);
    assert.equal(svg.match(/aria-roledescription="symbol mark"/g).length, penguins - adelies);
    const png = readFileSync(await saved(page, 'Save as PNG'));
    assert.equal(png.toString('latin1', 37, 46), 'iTXtTitle');
    assert.ok(png.includes('Groups by Species, with the number of rows: Adélie (151)'));
    const csv = readFileSync(await saved(page, 'Save as CSV'), 'utf8').split('\r\n');
    assert.equal(csv[0], '\ufeffSpecies,Flipper length (mm),Body mass (g),Fitted body mass (g)');
    assert.match(csv[1], /^Adélie,181,3750,3406\.69\d+$/);
    assert.equal(csv.length, penguins + 2);
  }));

test('a page saved as one file stands alone', async () => {
  const folder = mkdtempSync(join(tmpdir(), 'page-'));
  try {
    const file = join(folder, 'sent.html');
    await withChart(folders.penguins, async (page) =>
      copyFileSync(await saved(page, 'Save the page as one file'), file));
    await withPage(pathToFileURL(file).href, async (page) => {
      await page.waitForSelector('#trouble', {state: 'detached'});
      assert.equal(await page.locator(marks).count(), penguins);
      const again = readFileSync(await saved(page, 'Save the page as one file'), 'utf8');
      assert.equal(again, readFileSync(file, 'utf8'));
    });
  } finally {
    rmSync(folder, {recursive: true});
  }
});

test('a page without its script shows the picture beside it, and says how to send it', async () => {
  const folder = mkdtempSync(join(tmpdir(), 'page-'));
  try {
    for (const file of ['chart.html', 'chart.svg'])
      copyFileSync(join(charts, folders.penguins, file), join(folder, file));
    await assert.rejects(withPage(pathToFileURL(join(folder, 'chart.html')).href, async (page) => {
      await until(page, "getComputedStyle(document.getElementById('trouble')).visibility === 'visible'");
      assert.match(await page.textContent('#trouble'), /the script \.\.\/runtime\/chartxml-page\.js is missing.*choose “Save the page as one file”/);
      await until(page, "document.getElementById('still').naturalWidth > 0");
      assert.equal(await page.locator('#still').isVisible(), true);
    }), /ERR_FILE_NOT_FOUND/);
  } finally {
    rmSync(folder, {recursive: true});
  }
});

test('on a narrow screen the picture is scrolled in its own box, its letters can be read', () =>
  withChart(folders.penguins, async (page) => {
    const {picture, box, body} = await page.evaluate(() => ({
      picture: document.querySelector('#chart svg').getBoundingClientRect().width,
      box: document.querySelector('.plot').getBoundingClientRect().width,
      body: document.documentElement.scrollWidth,
    }));
    assert.equal(picture, 640);
    assert.ok(box < 420 && body <= 420, `${box} ${body}`);
    await page.focus('#chart');
    for (const key of ['End', 'ArrowDown', 'ArrowDown', 'End']) await page.keyboard.press(key);
    await until(page, "document.querySelector('.plot').scrollLeft > 0");
    const ring = await page.locator('.ring').boundingBox();
    assert.ok(ring.x + ring.width <= 420, String(ring.x));
    await assertAccessible(page);
  }, {viewport: {width: 420, height: 800}}));

test('a chart of many rows is drawn thinned, says so, and stays usable', () =>
  withChart(folders.big, async (page) => {
    assert.equal(await page.locator(marks).count(), 20_000);
    assert.match(await page.textContent('#notes'), /20\.000 von 250\.000 Zeilen/);
    await page.focus('#chart');
    await page.keyboard.press('End');
    assert.match(await liveText(page, /10\.0\d\d von 10\.0\d\d/), /Row: 249\d{3}; b: \d+ /);
    const start = Date.now();
    await page.keyboard.press('+');
    await until(page, "!document.querySelector('#chart').textContent.includes('250000')");
    assert.ok(Date.now() - start < 10_000);
  }));
