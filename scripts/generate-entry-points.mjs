#!/usr/bin/env node
// Writes what is made from the list of entry points: the C header, the Fortran
// modules and the reference page. With --check it writes nothing and fails when one
// of them differs from what it would write.
import { readFileSync, writeFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

import { fortran, umbrella } from './entry-points/fortran.mjs';
import { header } from './entry-points/header.mjs';
import { listPath, readList } from './entry-points/list.mjs';
import { page } from './entry-points/page.mjs';
import { rawFortran, rawModule } from './entry-points/raw-fortran.mjs';
import { words } from './entry-points/words.mjs';

const root = resolve(dirname(fileURLToPath(import.meta.url)), '..');

function written(path) {
  try {
    return readFileSync(join(root, path), 'utf8');
  } catch (error) {
    if (error.code === 'ENOENT') return '';
    throw error;
  }
}

function outputs(list) {
  return [
    ['backend/chartxml/include/chartxml/EntryPoints.h', header(list)],
    ['docs/entry-points.md', page(list)],
    ['fortran/chartxml.f90', umbrella(list)],
    ['fortran/words.f90', words(root)],
    ...list.groups.map(group => [`fortran/raw/${rawModule(group)}.f90`, rawFortran(group)]),
    ...list.groups.filter(fortran.has)
      .map(group => [`fortran/calls/chartxml_${group.id}.f90`, fortran(group)]),
  ];
}

function main(options) {
  const unknown = options.find(option => option !== '--check');
  if (unknown) throw new Error(`unknown option ${unknown}; the only one is --check`);
  for (const [path, lines] of outputs(readList(root))) {
    const text = `${lines.join('\n')}\n`;
    if (text === written(path)) continue;
    if (options.includes('--check')) {
      console.error(`${path} is not what ${listPath} says; run scripts/generate-entry-points.mjs`);
      process.exitCode = 1;
    } else {
      writeFileSync(join(root, path), text);
      console.log(`wrote ${path}`);
    }
  }
}

main(process.argv.slice(2));
