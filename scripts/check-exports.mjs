#!/usr/bin/env node
// Fails unless the library exports every entry point of the list under its name, and
// no other function of such a name.
//
// usage: check-exports.mjs <library>
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';

const listPath = new URL('../backend/chartxml/entrypoints.json', import.meta.url);
const { groups, extensions } = JSON.parse(readFileSync(listPath, 'utf8'));
const listed = [...groups, ...extensions].flatMap(group => group.entries).map(entry => entry.name);

const symbols = execFileSync('nm', ['-D', '--defined-only', process.argv[2]], { encoding: 'utf8' });
const exported = [...symbols.matchAll(/ T ((?:cx|chartxml)_\w+)$/gim)].map(([, name]) => name);

const without = (names, others) => names.filter(name => !others.includes(name));
const differences = [
  ...without(listed, exported).map(name => `${name} is listed, not exported`),
  ...without(exported, listed).map(name => `${name} is exported, not listed`),
];
if (differences.length) {
  console.error(differences.join('\n'));
  process.exitCode = 1;
}
console.log(`${listed.length} listed, ${exported.length} exported`);
