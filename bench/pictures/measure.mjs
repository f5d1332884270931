// Times whole processes, and makes tables of what was measured.

import {spawnSync} from 'node:child_process';
import {mkdtempSync, readFileSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join} from 'node:path';

const usage = join(mkdtempSync(join(tmpdir(), 'bench-')), 'usage');

/** One run: seconds on the clock and of processors, and the largest memory in MB. */
function timed({command, env}) {
  const start = process.hrtime.bigint();
  const {status, stderr} = spawnSync('/usr/bin/time', ['-o', usage, '-f', '%U %S %M', ...command],
    {env: {...process.env, ...env}, encoding: 'utf8', stdio: ['ignore', 'ignore', 'pipe']});
  const wall = Number(process.hrtime.bigint() - start) / 1e9;
  if (status !== 0) throw new Error(`${command.join(' ')} ended with ${status}\n${stderr}`);
  const [user, system, memory] = readFileSync(usage, 'utf8').trim().split(' ').map(Number);
  return {wall, cpu: user + system, memory: memory / 1024};
}

export const median = (values) => values.toSorted((a, b) => a - b)[values.length >> 1];

/** All contenders in turn, `runs` times, so that what slows the machine slows all. */
export function race(what, contenders, runs) {
  const results = contenders.map(() => []);
  for (let run = 0; run < runs; ++run)
    contenders.forEach((contender, i) => {
      process.stderr.write(`${what}, run ${run + 1} of ${runs}: ${contender.name}\n`);
      contender.prepare?.();
      results[i].push(timed(contender));
    });
  return contenders.map((contender, i) => {
    const of = (field) => results[i].map((result) => result[field]);
    return {...contender, least: Math.min(...of('wall')), wall: median(of('wall')),
      cpu: median(of('cpu')), memory: Math.max(...of('memory'))};
  });
}

const digits = (value, count) => value.toLocaleString('en', {maximumSignificantDigits: count, useGrouping: false});

/** Three digits of a number; a text as it is, and what is not known as none. */
const short = (value) =>
  typeof value !== 'number' ? value : !Number.isFinite(value) ? '-' : value >= 1000 ? Math.round(value).toString() : digits(value, 3);

const line = (cells) => console.log(`| ${cells.join(' | ')} |`);

/** Begins a table; returns what prints a row of it. */
export function beginTable(title, head) {
  console.log(`\n${title}\n`);
  line(head);
  line(head.map(() => '---'));
  return (row) => line(row.map(short));
}
