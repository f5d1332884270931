// What the procedures compute for the first rows of a chart, against R 4.2.2:
//
//   titanic     t <- read.csv("data/titanic/titanic.csv")
//               predict(lm(100 * survived ~ factor(class) + factor(sex) + factor(age), t,
//                          weights = persons)), for men, boys, women and girls of the 1st class
//   components  d <- na.omit(read.csv("data/penguins/penguins.csv")[, 3:6])
//               prcomp(d, scale. = TRUE)$x, turned so that the largest weight is positive
//   planes      fitted(lm(body_mass_g ~ flipper_length_mm + bill_depth_mm, d))
//   ordination  s <- scale(read.csv("data/states/states.csv")[, -(1:3)])
//               p <- prcomp(s[, 1:4]), its x / sdev; 2 * cor(s[, 1:4], x)
//               p <- prcomp(fitted(lm(s[, 1:3] ~ s[, 4:8]))), likewise, turned as above
//   clusters    hclust(dist(s[, 1:4]), "average")$height
//   population  u <- survival::uspop2[, , "2000"]
//               rowsum(u, pmin(0:100, 100) %/% 5) / 1e6, men negative
//   seasons     tapply(mdeaths, cycle(mdeaths), mean) and that of fdeaths in turn
//               acf(ldeaths, 24)$acf
//   sleep       t.test(extra[11:20], extra[1:10], paired = TRUE): estimate, upper and lower limit
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
  ['ordination', '0001-ordination', 'V14', [0.619514831208621, 1.225833075422884, 1.108303341136192]],
  ['ordination', '0001-ordination', 'V15', [-1.127787419858449, -1.067905901729883, 0.742267805489092]],
  ['ordination', '0001-ordination', 'V23 of source1', [0, 0, 0, 0, 1.687952880675534,
    1.836886473199491, 1.711678788849586, 0.876233529144079]],
  ['ordination', '0002-ordination', 'V14', [1.1172722238255, 1.06577253816794, 1.46376872474457]],
  ['ordination', '0002-ordination', 'V15', [-1.1430853229691, 2.19224686940952, 1.1990789220591]],
  ['ordination', '0002-ordination', 'V23 of source1', [0, 0, 0, 1.3639490251264, 1.23561411374034, 0.78816367567244]],
  ['ordination', '0002-ordination', 'V35 of source3', [0, 0, 0, 0, 0, 1.18311436265574,
    1.53361896244205, -0.80858401496970, 1.81704275797339, 0.10775508378826]],
  ['clusters', '0003-clusters', 'V7', [0.205853857157348, 0.350218756601623, 0.42877117242016, 0.494083187830451]],
  ['population', '0001-population', 'V8', [-9.820156, 9.377278, -10.491016, 9.997135]],
  ['seasons', '0002-seasons', 'V8', [2129.83333333333, 829.5, 2081.33333333333, 813.333333333333]],
  ['seasons', '0004-seasons', 'V7', [1, 0.75505114054793, 0.39695683601951]],
  ['sleep', '0002-sleep', 'reference lines', [1.58, 2.459885763276982, 0.700114236723018]],
];

const [programs, output] = process.argv.slice(2);
rmSync(output, {recursive: true, force: true});
for (const procedure of new Set(expected.map(([name]) => name)))
  execFileSync(join(programs, procedure), [],
    {env: {...process.env, CHARTXML_OUTPUT: join(output, procedure), CHARTXML_LANG: 'en'}});

/** "V7", "V7 of source1", or the values of y at which there are lines. */
function valuesOf(folder, what) {
  if (what === 'reference lines')
    return [...readFileSync(join(folder, 'chart.xml'), 'utf8')
      .matchAll(/<guide id="guide_referenceLine[^>]*>\s*<parameter name="y" value="([^"]*)"/g)]
      .map(([, value]) => Number(value));
  const [name, source = 'source0'] = what.split(' of ');
  const [head, ...rows] = readFileSync(join(folder, `${source}.csv`), 'utf8').trim().split('\n')
    .map((line) => line.replace(/"[^"]*"/g, '').split(','));
  return rows.map((row) => Number(row[head.indexOf(name)]));
}

let failed = false;
for (const [procedure, chart, name, values] of expected) {
  const column = valuesOf(join(output, procedure, chart), name);
  if (values.every((value, row) => Math.abs(column[row] - value) <= 1e-9 * Math.abs(value))) continue;
  console.error(`${chart}, ${name}: expected ${values}, the rows begin ${column.slice(0, values.length)}`);
  failed = true;
}
process.exit(failed ? 1 : 0);
