// The coefficients in the documents of procedure census, against those of R 4.2.2:
//
//   d <- read.csv("data/census/census.csv"); y <- d$population
//   x <- d$census      # over days: x <- as.numeric(as.Date(d$day) - as.Date("1582-10-14")) * 86400
//   linear     coef(lm(y ~ x))                                logarithmic  coef(lm(y ~ log(x)))
//   inverse    coef(lm(y ~ I(1/x)))                           S            coef(lm(log(y) ~ I(1/x)))
//   quadratic  coef(lm(y ~ x + I(x^2)))                       cubic        ... + I(x^3)
//   compound   exp(coef(lm(log(y) ~ x)))                      growth       coef(lm(log(y) ~ x))
//   power      a, b of lm(log(y) ~ log(x)): exp(a), b         exponential  a, b of growth: exp(a), b
//   logistic   exp(coef(lm(log(1/y - 1/250) ~ x))), 1/250
//
// Over days R was given tol = 1e-30, and powers of x / 1e9.
//
// usage: node fit_lines.mjs <program census> <output folder>
import {execFileSync} from 'node:child_process';
import {readdirSync, readFileSync, rmSync} from 'node:fs';
import {join} from 'node:path';

const expected = {
  Linear: [[-38.1029824561, 10.787245614], [-252.032082647, 3.42662613868e-8]],
  Logarithmic: [[-61.2534486532, 63.2801945365], [-6939.360353591, 305.466641446]],
  Inverse: [[98.1126363896, -151.7924491213], [359.359530977, -2.62532766171e12]],
  Quadratic: [[6.309143446852, -1.901933215391, 0.634458941471],
    [292.489014316, -8.57327653213e-8, 6.38833426067e-18]],
  Cubic: [[4.84633126934982, -1.12239997274827, 0.53947113773739, 0.00316626012446],
    [221.402653646, -6.20543349671e-8, 3.81560792326e-18, 9.12995289415e-29]],
  Compound: [[4.34051042434, 1.24638728319], [0.0550834026457774, 1.000000000699525771]],
  Power: [[1.73200513172, 1.50744922907], [1.16050995515e-63, 6.47549764215]],
  S: [[4.47644945598, -4.31636686073], [10.0482251295, -57818492355.1]],
  Growth: [[1.467991950491, 0.220249193251], [-2.8989068306, 6.99525701229e-10]],
  Exponential: [[4.340510424337, 0.220249193251], [0.0550834026458, 6.99525701229e-10]],
  Logistic: [[0.319700044156, 0.745183547392, 0.004], [109.058905681589, 0.9999999990657743, 0.004]],
};

// Where a formula has its coefficients in another order.
const reversed = new Set(['Linear']);
const origin = /datetodouble\(&quot;[^&]*&quot;\)/g;

const [program, output] = process.argv.slice(2);
rmSync(output, {recursive: true, force: true});
execFileSync(program, [], {env: {...process.env, CHARTXML_OUTPUT: output, CHARTXML_LANG: 'en'}});

const found = {};
for (const chart of readdirSync(output).filter((name) => /^\d{4}-/.test(name)).sort()) {
  const document = readFileSync(join(output, chart, 'chart.xml'), 'utf8');
  const curves = document.matchAll(/<guide [^>]*name="(\w+)"[^>]*>\s*<parameter name="y" value="([^"]*)"/g);
  for (const [, model, formula] of curves) {
    const overDays = formula.includes('datetodouble') ? 1 : 0;
    const numbers = formula.replace(origin, '').replace(/^1 \//, '')
      .match(/-?\d[\d.]*(?:e[+-]?\d+)?/g).map(Number);
    if (reversed.has(model)) numbers.reverse();
    if (model === 'Logistic') numbers.push(numbers.shift());
    (found[model] ??= [])[overDays] = numbers;
  }
}

// A growth factor a second is all in its distance from 1.
const near = (a, b) => Math.abs(a - b) <= Math.min(1e-9 * Math.abs(b), 1e-5 * Math.abs(b - 1));
let failed = false;
for (const [model, rows] of Object.entries(expected))
  rows.forEach((row, overDays) => {
    const numbers = found[model]?.[overDays] ?? [];
    if (numbers.length === row.length && row.every((value, i) => near(numbers[i], value))) return;
    console.error(`${model}${overDays ? ' over days' : ''}: expected ${row}, the document has ${numbers}`);
    failed = true;
  });
process.exit(failed ? 1 : 0);
