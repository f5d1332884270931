// Runs a procedure in a language and compares the charts that it makes with those
// that are committed. Numbers are compared to nine digits: the last ones differ between
// LAPACK libraries. What differs stays in the output folder, to be looked at.
//
// A procedure finds its data set below the working directory.
//
// usage: node compare.mjs <procedure> <language> <expected folder> <output folder>
import {execFileSync} from 'node:child_process';
import {readdirSync, readFileSync, rmSync} from 'node:fs';
import {join} from 'node:path';

const [procedure, language, expected, output] = process.argv.slice(2);
const digits = 9;

const rounded = (text) =>
  text.replace(/-?\d+\.\d+(e[+-]?\d+)?/g, (number) => String(Number(Number(number).toPrecision(digits))));

/** A last digit changes a hash, and a release the versions. */
const withoutHashes = (text) =>
  text.replace(/"sha256:[0-9a-f]{64}"/g, '"sha256"').replace(/("versions": \{)[^}]*/, '$1');

const charts = (folder) => readdirSync(folder).filter((name) => /^\d{4}-/.test(name));

rmSync(output, {recursive: true, force: true});
execFileSync(procedure, [], {
  env: {...process.env, CHARTXML_OUTPUT: output, CHARTXML_LANG: language},
  stdio: 'inherit',
});

function differences() {
  if (charts(output).join() !== charts(expected).join())
    return [`expected the charts ${charts(expected)}; there are now: ${charts(output)}`];
  const files = charts(expected).flatMap((chart) =>
    readdirSync(join(expected, chart)).map((name) => join(chart, name)));
  const text = (folder, file) => withoutHashes(rounded(readFileSync(join(folder, file), 'utf8')));
  return files
    .filter((file) => text(expected, file) !== text(output, file))
    .map((file) => `differs: ${join(expected, file)}\n     now: ${join(output, file)}`);
}

const found = differences();
found.forEach((difference) => console.error(difference));
process.exit(found.length === 0 ? 0 : 1);
