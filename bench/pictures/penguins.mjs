// Data sets of any length: the penguins again and again, each time measured a bit otherwise.

import {readFileSync, writeFileSync} from 'node:fs';

const measured = readFileSync('data/penguins/penguins.csv', 'utf8').trim().split('\n').slice(1)
  .map((line) => line.split(',')).filter((cells) => cells[4] && cells[5])
  .map(([species, , , , flipper, mass]) => ({species, flipper: Number(flipper), mass: Number(mass)}));

/** Numbers from -1 to 1, the same in every run. */
function* noise() {
  for (let state = 1; ; state = (state * 1103515245 + 12345) % 2 ** 31) yield state / 2 ** 30 - 1;
}

export function writePenguins(file, rows) {
  const next = noise();
  const off = (reach) => reach * next.next().value;
  const lines = Array.from({length: rows}, (_, i) => {
    const {species, flipper, mass} = measured[i % measured.length];
    if (i < measured.length) return `${species},${flipper},${mass}`;
    return `${species},${(flipper + off(3)).toFixed(2)},${(mass + off(150)).toFixed(1)}`;
  });
  writeFileSync(file, `species,flipper_length_mm,body_mass_g\n${lines.join('\n')}\n`);
}
