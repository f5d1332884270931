// The chart of procedure penguins, drawn from its data by us and by other programs: how
// long it takes, how large it is, and when a browser shows it whole. Tables go to standard
// output, progress to standard error.
//
// usage: node pictures.mjs <build folder> <folder to work in> [runs]
import {cpSync, mkdirSync, rmSync, statSync} from 'node:fs';
import {cpus} from 'node:os';
import {join, resolve} from 'node:path';
import {wholePictures} from './browser.mjs';
import {writePenguins} from './penguins.mjs';
import {printTable, race} from './measure.mjs';

const [build, work] = process.argv.slice(2, 4).map((path) => resolve(path));
const runs = Number(process.argv[4] ?? 5);
const sizes = [342, 1000, 100_000, 1_000_000];
const charts = 36;

const procedure = join(build, 'bin/procedures/penguins');
const chartxml = join(build, 'bin/chartxml');
const here = import.meta.dirname;
const size = (...files) => files.reduce((sum, file) => sum + statSync(file).size / 1024, 0);

/** Draws anew each time, into an empty folder. */
const inFolder = (name, command) => {
  const output = join(work, name);
  return {output, command, env: {CHARTXML_OUTPUT: output, CHARTXML_LANG: 'en'},
    prepare: () => rmSync(output, {recursive: true, force: true})};
};

function ours(data) {
  const page = inFolder('page', [procedure, data]);
  const svg = inFolder('svg', ['sh', '-c', `'${procedure}' '${data}' && '${chartxml}' render "$CHARTXML_OUTPUT" --svg`]);
  return [{name: 'chartxml, page', ...page, files: [join(page.output, '0001-penguins/chart.html'),
    join(page.output, 'runtime/chartxml-page.js')]},
  {name: 'chartxml, SVG', ...svg, files: [join(svg.output, '0001-penguins/chart.svg')]}];
}

const others = (data, count) => {
  const contender = (name, id, ...command) => {
    const picture = join(work, `${id}-`);
    return {name, command: [...command, data, String(count), picture], files: [`${picture}1.svg`]};
  };
  return [
    contender('gnuplot', 'gnuplot', 'gnuplot', '-c', join(here, 'scatter.gp')),
    contender('matplotlib', 'matplotlib', '/usr/bin/python3', join(here, 'scatter.py')),
    contender('ggplot2', 'ggplot2', 'Rscript', join(here, 'scatter.R')),
  ];
};

const head = ['rows', 'program', 'least s', 'median s', 'ratio', 'CPU s', 'memory MB'];
const rowsOf = (label, results, ownIndex) => results.map(({name, least, wall, cpu, memory}) =>
  [label, name, least, wall, wall / results[ownIndex].wall, cpu, memory]);

async function fromDataToPicture() {
  const table = [], shown = [];
  for (const rows of sizes) {
    const data = join(work, `penguins-${rows}.csv`);
    writePenguins(data, rows);
    const results = race(`${rows} rows`, [...ours(data), ...others(data, 1)], runs);
    rowsOf(rows, results, 0).forEach((row, i) => table.push([...row, size(...results[i].files)]));
    if (rows === sizes[0]) continue;
    const pictures = results.filter(({name}) => name !== 'chartxml, SVG');
    const seconds = await wholePictures(pictures.map(({files}) => files[0]), runs);
    pictures.forEach(({name, files}, i) =>
      shown.push([rows, name, size(...files), seconds[i].least, seconds[i].wall, seconds[i].wall / seconds[0].wall]));
  }
  printTable('From a data file to a page or an SVG', [...head, 'kB'], table);
  printTable('From opening the file to the whole picture in Chromium',
    ['rows', 'program', 'kB', 'least s', 'median s', 'ratio'], shown);
}

function manyCharts() {
  const data = join(work, `penguins-${sizes[0]}.csv`);
  const [, svg] = ours(data);
  race('charts to copy', [svg], 1);
  for (let i = 2; i <= charts; ++i)
    cpSync(join(svg.output, '0001-penguins'), join(svg.output, `${String(i).padStart(4, '0')}-penguins`), {recursive: true});
  const own = {name: 'chartxml', command: [chartxml, 'render', svg.output, '--svg']};
  const results = race(`${charts} charts`, [own, ...others(data, charts)], runs);
  printTable(`${charts} charts of ${sizes[0]} rows to SVG, in one process`, head, rowsOf(sizes[0], results, 0));
}

rmSync(work, {recursive: true, force: true});
mkdirSync(work, {recursive: true});
const [{model}] = cpus();
console.log(`${cpus().length} processors ${model}, ${runs} runs each, ratios of medians to the first of its rows`);
await fromDataToPicture();
manyCharts();
