// What the procedures say of data that they cannot use, and that they then stop.
//
// usage: node refusals.mjs <folder of programs> <output folder>
import {spawnSync} from 'node:child_process';
import {mkdirSync, readdirSync, rmSync, writeFileSync} from 'node:fs';
import {join} from 'node:path';

const survival = 'time,status,sex,ecog\n';
const cases = [
  ['lung', `${survival}-1,1,1,0\n`, 'a time is below zero'],
  ['lung', survival + '5,1,1,0\n'.repeat(12), 'there are no two groups to compare'],
  ['lung', survival + '5,1,1,0\n'.repeat(12) + '4,0,2,1\n'.repeat(12),
    'the groups cannot be compared: one has no case at risk'],
  ['light', 'sample,speed\n1,5\n1,6\n2,7\n', 'samples have to be of the same size'],
  ['light', 'sample,speed\n1,5\n2,6\n', 'a sample needs two values'],
  ['light', 'sample,speed\n2,5\n2,6\n', 'samples have to be numbered from 1'],
  ['mileage', 'displacement,highway\n1,2\n2,3\n4,4\n', 'no curve: it has as many coefficients as cases'],
  ['mammals', 'name,body,brain\nCat,3,25\nDog,0,70\n', 'a mass is not above zero'],
  ['diamonds', 'carat,color,clarity,price\n1,,2,300\n', 'the data set has no complete case'],
];

const [programs, output] = process.argv.slice(2);
rmSync(output, {recursive: true, force: true});
const charts = join(output, 'charts');
mkdirSync(charts, {recursive: true});

let failed = false;
for (const [procedure, table, message] of cases) {
  const file = join(output, 'table.csv');
  writeFileSync(file, table);
  const {status, stderr} = spawnSync(join(programs, procedure), [file],
    {encoding: 'utf8', env: {...process.env, CHARTXML_OUTPUT: charts, CHARTXML_LANG: 'en'}});
  const drawn = readdirSync(charts);
  if (status === 1 && stderr === `${message}\n` && drawn.length === 0) continue;
  console.error(`${procedure}: expected ${message}; exit code ${status}, charts [${drawn}], said ${stderr}`);
  failed = true;
}
process.exit(failed ? 1 : 0);
