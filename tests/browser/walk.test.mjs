import assert from 'node:assert/strict';
import {readdirSync} from 'node:fs';
import {join} from 'node:path';
import {test} from 'node:test';
import {pathToFileURL} from 'node:url';
import {charts, until, withPage} from './support.mjs';

const procedures = join(charts, '../procedures');
/** Their data have rows that are alike, or a line through their points. */
const repeatsRows = /components|islands|mileage|penguins|planes|regions|unemployment/;
const mostSeries = 60;

/** The texts of every stop that the arrow keys come to, a list for each series. */
const walkOf = (page) => page.evaluate((mostSeries) => {
  const chart = document.getElementById('chart');
  const live = document.getElementById('live');
  const press = (key) => {
    chart.dispatchEvent(new KeyboardEvent('keydown', {key, bubbles: true}));
    return live.textContent;
  };
  const all = [];
  press('ArrowRight');
  while (all.length < mostSeries) {
    const texts = [press('Home')];
    for (let text = press('ArrowRight'); text !== texts.at(-1); text = press('ArrowRight')) texts.push(text);
    if (texts.join() === all[0]?.join()) break;
    all.push(texts);
    press('ArrowDown');
  }
  return all;
}, mostSeries);

const withProcedure = (folder, act) =>
  withPage(pathToFileURL(join(procedures, folder, 'chart.html')).href, async (page) => {
    await until(page, "document.getElementById('trouble') === null");
    await act(page);
  });

/** What is wrong with the text of a stop. */
function faultOf(text) {
  const told = text.replace(/ \([\d,]+ of [\d,]+\)$/, '');
  if (!/: ./.test(told)) return 'has no value';
  if (/NaN|undefined|null|Axis: /.test(told)) return 'says what nobody reads';
  return /\d\.\d{7}/.test(told) ? 'is not rounded' : null;
}

for (const name of readdirSync(procedures))
  test(`every stop in the charts of ${name} says what it is`, async () => {
    for (const chart of readdirSync(join(procedures, name)).filter((folder) => /^\d{4}-/.test(folder)))
      await withProcedure(join(name, chart), async (page) => {
        const all = (await walkOf(page)).flat();
        const faults = all.filter(faultOf).map((text) => `${text} ${faultOf(text)}`);
        if (all.length === 0) faults.push('nothing can be walked through');
        const plain = all.map((text) => text.replace(/ \([\d,]+ of [\d,]+\)$/, ''));
        const twice = plain.filter((text, i) => plain.indexOf(text) !== i);
        if (!repeatsRows.test(name)) faults.push(...twice.map((text) => `${text} is there twice`));
        assert.deepEqual(faults.slice(0, 5), [], chart);
      });
  });

const first = [
  ['census/0001-census', 1, 'Number of the census: 0.1; Linear: -37.02; 10.79 * x - 38.1 (1 of 25)'],
  ['census/0004-census', 1, 'Day of the census: Aug 1781; Linear: -37.04 (1 of 25)'],
  ['diamonds/0001-diamonds', 0, 'Weight (carat): 0.20; Price (dollars): $1926; Count: 1 (1 of 156)'],
  ['distributions/0001-distributions', 0, 'Flipper length (mm): 168 to 175; Penguins: 2 (1 of 10)'],
  ['distributions/0003-distributions', 0, 'Sex: Female; Species: Adélie; Body mass (g); Lower whisker: 2850; ' +
    'Lower hinge: 3175; Median: 3400; Upper hinge: 3550; Upper whisker: 3900 (1 of 3)'],
  ['distributions/0003-distributions', 2, 'Sex: Female; Species: Chinstrap; Body mass (g): 2700; Outlier (1 of 1)'],
  ['lung/0001-lung', 0, 'Sex: Male; Days from entry: 0; Share alive: 1.00 to 1.00 (1 of 120)'],
  ['planes/0002-planes', 0, 'Observed; Flipper length (mm): 172; Body mass (g): 3150; Bill depth (mm): 18.6 (1 of 342)'],
  ['population/0001-population', 0, 'Sex: Men; Age: 100 and more; Persons (millions): 0.01 (1 of 21)'],
  ['seasons/0002-seasons', 0, 'Sex: Men; Month: January; Mean deaths in a month: 2130 (1 of 12)'],
  ['weather/0001-weather', 0, 'Month: Jan; Range of all days: -4.4 to 17.2 (1 of 12)'],
];
test('series, place and values are told', async () => {
  for (const [folder, series, text] of first)
    await withProcedure(folder, async (page) => assert.equal((await walkOf(page))[series][0], text, folder));
});

test('a legend of named elements hides each of them', () =>
  withProcedure('weather/0001-weather', async (page) => {
    const lines = () => page.locator('#chart .mark-line.role-mark path[d^="M"]').count();
    assert.equal(await lines(), 1);
    await page.getByRole('checkbox', {name: 'Mean temperature'}).uncheck();
    await until(page, `document.querySelectorAll('#chart .mark-line.role-mark path[d^="M"]').length === 0`);
    await page.locator('.role-legend-label text', {hasText: 'Mean temperature'}).click();
    await until(page, `document.querySelectorAll('#chart .mark-line.role-mark path[d^="M"]').length === 1`);
  }));

test('groups that stand on each other are not hidden, and the page says so', () =>
  withProcedure('islands/0002-islands', async (page) => {
    assert.equal(await page.locator('fieldset').count(), 0);
    assert.equal(await page.textContent('#filters'), 'Species: groups that stand on each other cannot be hidden.');
  }));

test('a line shows in its tooltip the place that is nearest to the pointer', () =>
  withProcedure('light/0001-light', async (page) => {
    const rowsAt = async (share) => {
      const at = await page.evaluate((share) => {
        const path = document.querySelector('#chart .mark-line.role-mark path');
        const {x, y} = path.getPointAtLength(path.getTotalLength() * share).matrixTransform(path.getScreenCTM());
        return {x, y};
      }, share);
      await page.mouse.move(at.x, at.y, {steps: 2});
      await page.waitForSelector('#vg-tooltip-element.visible');
      return page.$$eval('#vg-tooltip-element tr', (all) => all.map((row) => row.innerText.trim()));
    };
    assert.match((await rowsAt(0.005))[0], /^Sample\s+1$/);
    assert.match((await rowsAt(0.995))[0], /^Sample\s+20$/);
  }));
