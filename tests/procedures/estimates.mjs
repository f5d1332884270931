// What the procedures estimate, against R 4.2.2 with survival 3.5-3: rows of the charts'
// columns, texts of their documents, and counts in hexagons.
//
//   lung      l <- read.csv("data/lung/lung.csv")
//             summary(survfit(Surv(time, status) ~ sex, l)), the same by ecog below 3, survdiff
//   light     d <- read.csv("data/light/light.csv"); r <- mean range of the samples
//             d2 <- integrate(function(w) ptukey(w, 5, Inf, lower = FALSE), 0, Inf)
//             d3 likewise of 2 * w * ptukey(...); mean -+ 3 * r / d2 / sqrt(5), r * (1 + 3 * d3 / d2)
//   mileage   f <- lm(highway ~ displacement + I(displacement^2), m)
//             predict(f, data.frame(displacement = c(1.6, 4.3, 7)), interval = ...): curve,
//             prediction limits, confidence limits
//   mammals   10^predict(lm(log10(brain) ~ log10(body), m), ..., interval = "confidence")
//   weather   tapply by month: min, mean, mean of the two, mean, max
//   diamonds  tapply(price, list(color, clarity), mean); the nearest of all centers of hexagons
//
// usage: node estimates.mjs <folder of programs> <output folder>
import {spawnSync} from 'node:child_process';
import {readFileSync, rmSync} from 'node:fs';
import {join} from 'node:path';

const rows = [
  ['0001-lung', 'source0', [0, 1, 1], [229, 0.544230339029632, 1], [239, 0.7321639467866785, 2]],
  ['0001-lung', 'source1', [1, 11, 0.954230116249187, 1], [1, 883, 0.010916350446892, 0.116841295774239],
    [2, 239, 0.643804999776160, 0.832649707847294]],
  ['0001-lung', 'source2', [185, 0.622494603761949]],
  ['0002-lung', 'source0', [340, 0.63251987865834, 0], [524, 0.25962421635775, 1], [814, 0, 2]],
  ['0001-light', 'source0', [4, 299946, 299930.559019767796, 299852.4, 299774.240980232251, 2]],
  ['0002-light', 'source0', [1, 330, 286.514634161763, 135.5, 0, 2]],
  ['0001-mileage', 'source1',
    [1.6, 33.2329846418734, 26.3969389425535, 40.0690303411932, 32.1124899646329, 34.3534793191138],
    [4.3, 18.9305379237338, 12.1546916455753, 25.7063842018923, 18.2701741574885, 19.5909016899791],
    [7, 20.5993685515960, 13.3146644116409, 27.8840726915510, 17.8442094046112, 23.3545276985807]],
  ['0001-mammals', 'source1', [0.005, 0.146355207004846, 0.0986581180590922, 0.217111850893018],
    [6654, 7101.41924682854, 4399.15161399170, 11463.6092920352]],
  ['0001-weather', 'source0', [1, -4.4, 2.69677419354839, 5.46290322580645, 8.22903225806452, 17.2],
    [8, 10, 14.7693548387097, 20.4407258064516, 26.1120967741935, 35.6]],
  ['0002-diamonds', 'source0', [1, 8, 9313.05555555556], [7, 1, 5720.63636363636], [4, 4, 4437.26427061311]],
];

const texts = [
  ['0001-lung', 'Log-rank test: chi-squared 10.33 with 1 df, p = 0.0013',
    'Male: 138 patients, 112 deaths, median survival 270 days (212 to 310)',
    'Female: 90 patients, 53 deaths, median survival 426 days (348 to 550)'],
  ['0002-lung', 'Log-rank test: chi-squared 18.01 with 2 df, p = 0.0001',
    'In bed, less than half the day: 50 patients, 44 deaths, median survival 199 days (156 to 288)'],
  ['0001-light', 'Center line 299852.4, control limits 299774.2 and 299930.6 (20 samples of 5)',
    'Beyond the limits: 4, 5, 14'],
  ['0001-mileage', 'Economy = 49.25 - 11.76 x + 1.10 x² with x in liters; R² = 0.672, standard error 3.42, n = 234'],
  ['0001-mammals', 'Brain mass = 8.43 times body mass to the power 0.765; R² = 0.932 of the logarithms, n = 56'],
  ['0001-diamonds', '10788 diamonds, mean price $3932'],
];

const hexagons = {count: 156, fullest: [2208, 760, 674, 622, 618, 610, 541, 453]};

const [programs, output] = process.argv.slice(2);
const folderOf = (chart) => join(output, chart.slice('0001-'.length), chart);
rmSync(output, {recursive: true, force: true});

const near = (a, b) => Math.abs(a - b) <= 1e-9 * Math.max(Math.abs(b), 1e-3);
let failed = false;
const fail = (message) => {
  console.error(message);
  failed = true;
};

for (const procedure of new Set(rows.map(([chart]) => chart.slice('0001-'.length)))) {
  const {status, stderr} = spawnSync(join(programs, procedure), [],
    {encoding: 'utf8', env: {...process.env, CHARTXML_OUTPUT: join(output, procedure), CHARTXML_LANG: 'en'}});
  if (status !== 0 || stderr !== '') fail(`${procedure}: exit code ${status}, said ${stderr}`);
}

for (const [chart, source, ...expected] of rows) {
  const [, ...lines] = readFileSync(join(folderOf(chart), `${source}.csv`), 'utf8').trim().split('\n');
  const found = lines.map((line) => line.split(',').map(Number));
  for (const row of expected)
    if (!found.some((each) => each.length === row.length && each.every((value, i) => near(value, row[i]))))
      fail(`${chart}, ${source}: no row is ${row}`);
}

for (const [chart, ...expected] of texts) {
  const document = readFileSync(join(folderOf(chart), 'chart.xml'), 'utf8');
  for (const text of expected) if (!document.includes(text)) fail(`${chart} does not say: ${text}`);
}

const {data} = JSON.parse(readFileSync(join(folderOf('0001-diamonds'), 'chart.vg.json'), 'utf8'));
const counts = data.find(({name}) => name.startsWith('element_')).values
  .map(({value}) => value).sort((a, b) => b - a);
if (counts.length !== hexagons.count) fail(`${counts.length} hexagons, not ${hexagons.count}`);
if (hexagons.fullest.some((count, i) => count !== counts[i]))
  fail(`the fullest hexagons have ${counts.slice(0, hexagons.fullest.length)} diamonds`);
process.exit(failed ? 1 : 0);
