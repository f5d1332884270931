// What the elements of charts draw, against numbers.json, which numbers.R computes.
//
// usage: node numbers.mjs <folder of programs> <command chartxml> <output folder>
import {execFileSync} from 'node:child_process';
import {mkdirSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import {basename, dirname, join} from 'node:path';
import {parse, View} from 'vega';

const [programs, chartxml, output] = process.argv.slice(2);
const expected = JSON.parse(readFileSync(join(import.meta.dirname, 'numbers.json'), 'utf8'));

// The charts of "documents": an element over the penguins that are measured completely.

const element = (type, content, modifier = 'none') =>
  `<element type="${type}" id="e" positionModifier="${modifier}">${content}</element>`;
const statistic = (method, parameters = {}) =>
  `<statistic method="${method}">${Object.entries(parameters).map(([name, value]) =>
    `<parameter name="${name}" value="${value}"/>`).join('')}</statistic>`;
const [x, y] = ['x', 'y'].map((role) => (variable) => `<${role} variable="${variable}"/>`);
const by = (variable) => `<styleBy variable="${variable}" id="by" styleCycle="styleCycleDefault"/>`;

const weighted = Object.fromEntries(
  ['mean', 'median', 'standardDeviation', 'sum', 'count', 'min', 'max'].map((method) =>
    [method, element('interval', x('species') + y('bill_depth_mm') + statistic(method))]));
const plots = {
  bins: element('interval', x('bill_length_mm') + statistic('histogram', {bins: 12})),
  usual: element('interval', x('bill_length_mm') + statistic('histogram')),
  width: element('interval', x('bill_depth_mm') + statistic('histogram', {'bin-width': 0.75})),
  curves: element('line', x('body_mass_g') + by('species') + statistic('distribution', {type: 'normal'})),
  shares: element('interval', x('island') + by('species') + statistic('percent', {base: 'place'}), 'stack'),
  hexagons: element('polygon', x('flipper_length_mm') + y('body_mass_g') + statistic('bin', {grid: 'hex'})),
  boxes: element('schema', x('island') + y('bill_depth_mm')),
  ...weighted,
};
const weighs = ['boxes', ...Object.keys(weighted)];

const penguins = readFileSync('data/penguins/penguins.csv', 'utf8').trim().split('\n')
  .filter((line) => !line.split(',').includes(''));

function document(name) {
  const variables = penguins[0].split(',').map((column) => {
    const weight = column === 'flipper_length_mm' && weighs.includes(name) ? '<meta weight="true"/>' : '';
    return `<variable id="${column}" sourceName="${column}" source="source0" categorical="${
      /^(species|island|sex)$/.test(column)}">${weight}</variable>`;
  });
  return `<graph name="${name}"><source id="source0"><otherAccess type="object"/></source>${
    variables.join('')}<frame id="data">${plots[name]}</frame></graph>`;
}

function writeDocuments(folder) {
  for (const name of Object.keys(plots)) {
    const chart = join(folder, name);
    mkdirSync(chart, {recursive: true});
    writeFileSync(join(chart, 'chart.xml'), document(name));
    writeFileSync(join(chart, 'source0.csv'), penguins.join('\n') + '\n');
  }
  execFileSync(chartxml, ['render', ...Object.keys(plots).map((name) => join(folder, name))], {stdio: 'ignore'});
}

// The comparison

const near = (found, value) =>
  typeof value === 'number' ? Math.abs(found - value) <= 1e-9 * Math.max(1, Math.abs(value)) : found === value;
const isItem = (found, item) => Object.entries(item).every(([field, value]) => near(found[field], value));

/** A curve is drawn through its points: between two of them it is straight. */
function isOnCurve(points, {x: at, y: height}) {
  const after = points.findIndex((point) => point.x >= at);
  const [a, b] = [points[after - 1], points[after]];
  const drawn = a.y + (b.y - a.y) * (at - a.x) / (b.x - a.x);
  return Math.abs(drawn - height) <= 1e-4 * Math.abs(height);
}

/** The ends of a scale, in the outermost group that has one of that name. */
function endsOf(group, name) {
  const scale = group.scales?.find((each) => each.name === name);
  if (scale) return [{low: scale.domain[0], high: scale.domain[1]}];
  return group.marks?.map((mark) => endsOf(mark, name)).find((ends) => ends.length > 0) ?? [];
}

/** The chart's Vega text, and the view of it; entries of a chart follow each other. */
const last = {};
async function open(chart) {
  if (last.chart === chart) return last;
  const spec = JSON.parse(readFileSync(join(output, chart, 'chart.vg.json'), 'utf8'));
  return Object.assign(last, {chart, spec, view: await new View(parse(spec)).runAsync()});
}

async function differences({chart, data, some, items}) {
  const {spec, view} = await open(chart);
  const [, scale] = /^scale (.*)/.exec(data) ?? [];
  const found = scale ? endsOf(spec, scale) : view.data(data);
  if (data.startsWith('guide')) return items.filter((item) => !isOnCurve(found, item));
  const missing = items.filter((item) => !found.some((each) => isItem(each, item)));
  const extra = some ? [] : found.filter((each) => !items.some((item) => isItem(each, item)));
  return [...missing, ...extra.map((each) => ({drawn: each}))];
}

rmSync(output, {recursive: true, force: true});
for (const procedure of new Set(expected.map(({chart}) => dirname(chart)))) {
  if (procedure === 'documents') writeDocuments(join(output, procedure));
  else execFileSync(join(programs, procedure), [],
    {env: {...process.env, CHARTXML_OUTPUT: join(output, procedure), CHARTXML_LANG: 'en'}});
}

for (const entry of expected) {
  const found = await differences(entry);
  for (const each of found.slice(0, 5))
    console.error(`${entry.chart}, ${entry.data}: differs: ${JSON.stringify(each)}`);
  if (found.length > 0) process.exitCode = 1;
}
const untested = Object.keys(plots).filter((name) => !expected.some(({chart}) => basename(chart) === name));
if (untested.length > 0) throw new Error(`numbers.json has nothing of ${untested}`);
