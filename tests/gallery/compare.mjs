// Runs a procedure and compares the chart folder that it makes with the one that is
// committed. Numbers are compared to nine digits: the last ones differ between
// LAPACK libraries. What differs stays in the output folder, to be looked at.
//
// usage: node compare.mjs <procedure> <data set> <expected folder> <output folder>
import {execFileSync} from 'node:child_process';
import {readdirSync, readFileSync, rmSync} from 'node:fs';
import {join} from 'node:path';

const [procedure, dataSet, expected, output] = process.argv.slice(2);
const digits = 9;

const rounded = (text) =>
  text.replace(/-?\d+\.\d+(e[+-]?\d+)?/g, (number) => String(Number(Number(number).toPrecision(digits))));

rmSync(output, {recursive: true, force: true});
execFileSync(procedure, [dataSet], {env: {...process.env, CHARTXML_OUTPUT: output}, stdio: 'inherit'});
const chart = readdirSync(output).find((name) => name.startsWith('0001-'));

let same = true;
for (const name of readdirSync(expected)) {
  const actual = join(output, chart, name);
  if (rounded(readFileSync(actual, 'utf8')) === rounded(readFileSync(join(expected, name), 'utf8'))) continue;
  same = false;
  console.error(`differs: ${join(expected, name)}\n     now: ${actual}`);
}
process.exit(same ? 0 : 1);
