import assert from 'node:assert/strict';
import {mkdtempSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join} from 'node:path';
import {after, before, test} from 'node:test';
import {folders} from './names.mjs';
import {launch, saved, urlOf, withChart, withPage} from './support.mjs';

/** A machine with one font, whose letters look like none of the pictures'. */
const oneFont = (cache) => `<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig>
<dir>/usr/share/fonts/truetype/dejavu</dir><cachedir>${cache}</cachedir>
<selectfont><rejectfont><glob>*DejaVuSans*</glob></rejectfont></selectfont>
<include>/etc/fonts/conf.d</include></fontconfig>`;

let other;
let folder;
before(async () => {
  folder = mkdtempSync(join(tmpdir(), 'fonts-'));
  const file = join(folder, 'fonts.conf');
  writeFileSync(file, oneFont(folder));
  other = await launch({FONTCONFIG_FILE: file});
});
after(async () => {
  await other?.close();
  rmSync(folder, {recursive: true});
});

/** The fonts that the texts of a picture are drawn in, and whether the page holds them. */
async function fontsOfTexts(page) {
  const session = await page.context().newCDPSession(page);
  await session.send('DOM.enable');
  await session.send('CSS.enable');
  const {root} = await session.send('DOM.getDocument');
  const {nodeIds} = await session.send('DOM.querySelectorAll', {nodeId: root.nodeId, selector: 'svg text'});
  const answers = await Promise.all(nodeIds.map((nodeId) => session.send('CSS.getPlatformFontsForNode', {nodeId})));
  const names = answers.flatMap(({fonts}) => fonts).map(({familyName, isCustomFont}) => `${familyName} ${isCustomFont}`);
  return [...new Set(names)].sort();
}

const charts = [
  {folder: folders.penguins, fonts: ['Liberation Sans true']},
  {folder: folders.dates, save: (name) => `${name}で保存`, fonts: ['Liberation Sans true', 'Noto Sans CJK JP true']},
  {folder: folders.letters, fonts: ['DejaVu Sans true', 'Liberation Sans true', 'Noto Sans CJK JP true']},
];

for (const {folder: chart, fonts, save = (name) => `Save as ${name}`} of charts)
  test(`${chart} looks the same whatever fonts its reader has`, async () => {
    const ofPage = async (page) => {
      assert.deepEqual(await fontsOfTexts(page), fonts);
      return {
        picture: await page.locator('#chart svg').screenshot(),
        svg: readFileSync(await saved(page, save('SVG'))),
        png: readFileSync(await saved(page, save('PNG'))),
      };
    };
    const ofSvg = async (page) => {
      assert.deepEqual(await fontsOfTexts(page), fonts);
      return page.locator('svg').first().screenshot();
    };
    const made = {};
    for (const [name, browser] of [['here', undefined], ['there', other]]) {
      await withChart(chart, async (page) => (made[name] = await ofPage(page)), {}, browser);
      await withPage(urlOf(chart, 'chart.svg'), async (page) => (made[name].file = await ofSvg(page)), {}, browser);
    }
    for (const [kind, bytes] of Object.entries(made.here))
      assert.ok(bytes.equals(made.there[kind]), kind);
  });

test('a page without the letters of its picture is drawn in other fonts', () =>
  withPage(urlOf(folders.withoutFonts, 'chart.html'), async (page) => {
    await page.waitForSelector('#trouble', {state: 'detached'});
    const fonts = await fontsOfTexts(page);
    assert.ok(fonts.includes('DejaVu Serif false'));
    assert.deepEqual(fonts.filter((font) => font.endsWith('true')), []);
    assert.match(await page.textContent('#notes'), /^\s*the font file LiberationSans-Regular\.ttf is missing/);
  }, {}, other));
