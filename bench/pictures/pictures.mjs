// The chart of procedure penguins, drawn from its data by us and by other programs: how
// long it takes, how large it is, and when a browser shows it whole. Tables go to standard
// output, rows as they come; progress goes to standard error.
//
// usage: node pictures.mjs <build folder> <folder to work in> [--part files|browser|charts]…
//          [--rows <number>]… [--runs <number>] [--limit <seconds in the browser>]
import {cpSync, existsSync, mkdirSync, rmSync, statSync} from 'node:fs';
import {cpus} from 'node:os';
import {join, resolve} from 'node:path';
import {parseArgs} from 'node:util';
import {wholePictures} from './browser.mjs';
import {writePenguins} from './penguins.mjs';
import {beginTable, race} from './measure.mjs';

const few = 342;
const charts = 36;
const {values: options, positionals} = parseArgs({
  allowPositionals: true,
  options: {
    part: {type: 'string', multiple: true, default: ['files', 'browser', 'charts']},
    rows: {type: 'string', multiple: true, default: [few, 1000, 100_000, 1_000_000].map(String)},
    runs: {type: 'string', default: '5'},
    limit: {type: 'string', default: '60'},
  },
});
const [build, work] = positionals.map((path) => resolve(path));
const [runs, limit] = [options.runs, options.limit].map(Number);
const sizes = options.rows.map(Number);

const procedure = join(build, 'bin/procedures/penguins');
const chartxml = join(build, 'bin/chartxml');
const here = import.meta.dirname;
const size = (...files) => files.reduce((sum, file) => sum + statSync(file).size / 1024, 0);

function dataOf(rows) {
  const data = join(work, `penguins-${rows}.csv`);
  if (!existsSync(data)) writePenguins(data, rows);
  return data;
}

/** Draws anew each time, into an empty folder. */
const inFolder = (output, command) =>
  ({output, command, env: {CHARTXML_OUTPUT: output, CHARTXML_LANG: 'en'},
    prepare: () => rmSync(output, {recursive: true, force: true})});

function ours(rows) {
  const data = dataOf(rows);
  const page = inFolder(join(work, `page-${rows}`), [procedure, data]);
  const svg = inFolder(join(work, `svg-${rows}`),
    ['sh', '-c', `'${procedure}' '${data}' && '${chartxml}' render "$CHARTXML_OUTPUT" --svg`]);
  return [{name: 'chartxml, page', ...page, files: [join(page.output, '0001-penguins/chart.html'),
    join(page.output, 'runtime/chartxml-page.js')]},
  {name: 'chartxml, SVG', ...svg, files: [join(svg.output, '0001-penguins/chart.svg')]}];
}

const others = (rows, count) => {
  const contender = (name, id, ...command) => {
    const picture = join(work, `${id}-${rows}-`);
    return {name, command: [...command, dataOf(rows), String(count), picture], files: [`${picture}1.svg`]};
  };
  return [
    contender('gnuplot', 'gnuplot', 'gnuplot', '-c', join(here, 'scatter.gp')),
    contender('matplotlib', 'matplotlib', '/usr/bin/python3', join(here, 'scatter.py')),
    contender('ggplot2', 'ggplot2', 'Rscript', join(here, 'scatter.R')),
  ];
};

const head = ['rows', 'program', 'least s', 'median s', 'ratio', 'CPU s', 'memory MB'];
const cellsOf = (rows, {name, least, wall, cpu, memory}, own) =>
  [rows, name, least, wall, wall / own.wall, cpu, memory];

function files() {
  const print = beginTable('From a data file to a page or an SVG', [...head, 'kB']);
  for (const rows of sizes) {
    const results = race(`${rows} rows`, [...ours(rows), ...others(rows, 1)], runs);
    for (const result of results) print([...cellsOf(rows, result, results[0]), size(...result.files)]);
  }
}

async function browser() {
  const print = beginTable('From opening the file to the whole picture in Chromium',
    ['rows', 'program', 'kB', 'least s', 'median s', 'ratio']);
  const shown = (seconds) => (seconds === Infinity ? `> ${limit}` : seconds);
  for (const rows of sizes.filter((count) => count > few)) {
    const pictures = [ours(rows)[0], ...others(rows, 1)];
    race(`${rows} rows to show`, pictures.filter(({files: [file]}) => !existsSync(file)), 1);
    const seconds = await wholePictures(pictures.map(({files: [file]}) => file), {runs, limit});
    pictures.forEach(({name, files: drawn}, i) => print([rows, name, size(...drawn),
      shown(seconds[i].least), shown(seconds[i].wall), seconds[i].wall / seconds[0].wall]));
  }
}

function manyCharts() {
  const [, svg] = ours(few);
  race('charts to copy', [svg], 1);
  for (let i = 2; i <= charts; ++i)
    cpSync(join(svg.output, '0001-penguins'), join(svg.output, `${String(i).padStart(4, '0')}-penguins`), {recursive: true});
  const own = {name: 'chartxml', command: [chartxml, 'render', svg.output, '--svg']};
  const results = race(`${charts} charts`, [own, ...others(few, charts)], runs);
  const print = beginTable(`${charts} charts of ${few} rows to SVG, in one process`, head);
  for (const result of results) print(cellsOf(few, result, results[0]));
}

const parts = {files, browser, charts: manyCharts};
const unknown = options.part.filter((part) => !Object.hasOwn(parts, part));
if (unknown.length > 0 || ![runs, limit, ...sizes].every((number) => number > 0)) {
  console.error(`pictures.mjs: parts are ${Object.keys(parts).join(', ')}; rows, runs and limit are numbers above zero`);
  process.exit(2);
}
rmSync(work, {recursive: true, force: true});
mkdirSync(work, {recursive: true});
const [{model}] = cpus();
console.log(`${cpus().length} processors ${model}, ${runs} runs each, ratios of medians to the first of its rows`);
for (const part of options.part) await parts[part]();
