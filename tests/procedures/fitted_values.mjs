// What the procedures compute for the first rows of a chart, against R 4.2.2:
//
//   titanic     t <- read.csv("data/titanic/titanic.csv")
//               predict(lm(100 * survived ~ factor(class) + factor(sex) + factor(age), t,
//                          weights = persons)), for men, boys, women and girls of the 1st class
//   components  d <- na.omit(read.csv("data/penguins/penguins.csv")[, 3:6])
//               prcomp(d, scale. = TRUE)$x, turned so that the largest weight is positive
//   planes      fitted(lm(body_mass_g ~ flipper_length_mm + bill_depth_mm, d))
//
// usage: node fitted_values.mjs <folder of programs> <output folder>
import {execFileSync} from 'node:child_process';
import {readFileSync, rmSync} from 'node:fs';
import {join} from 'node:path';

const expected = [
  ['titanic', '0003-titanic', 'V6', [40.2349713196561, 58.364541454894, 89.302949942417, 107.432520077655]],
  ['components', '0002-components', 'V5', [-1.8407478244042, -1.3048500241422, -1.3671778020177]],
  ['components', '0002-components', 'V6', [0.047632426112204, -0.42772154213461, -0.154250391253254]],
  ['components', '0002-components', 'V7', [-0.232453570927584, -0.029519101370463, 0.198381626850701]],
  ['planes', '0002-planes', 'V8', [3210.3524048767, 3438.6352489473]],
];

const [programs, output] = process.argv.slice(2);
rmSync(output, {recursive: true, force: true});
for (const procedure of new Set(expected.map(([name]) => name)))
  execFileSync(join(programs, procedure), [],
    {env: {...process.env, CHARTXML_OUTPUT: join(output, procedure), CHARTXML_LANG: 'en'}});

function columnOf(file, name) {
  const [head, ...rows] = readFileSync(file, 'utf8').trim().split('\n')
    .map((line) => line.replace(/"[^"]*"/g, '').split(','));
  return rows.map((row) => Number(row[head.indexOf(name)]));
}

let failed = false;
for (const [procedure, chart, name, values] of expected) {
  const column = columnOf(join(output, procedure, chart, 'source0.csv'), name);
  if (values.every((value, row) => Math.abs(column[row] - value) <= 1e-9 * Math.abs(value))) continue;
  console.error(`${chart}, ${name}: expected ${values}, the rows begin ${column.slice(0, values.length)}`);
  failed = true;
}
process.exit(failed ? 1 : 0);
