// The list of entry points, read and checked.
import { readFileSync } from 'node:fs';
import { join } from 'node:path';

export const listPath = 'backend/chartxml/entrypoints.json';
export const madeFrom =
  `Made from ${listPath} by scripts/generate-entry-points.mjs: change the list, not this file.`;

// What an argument of each kind is in C and in Fortran. Some are two arguments: `second`
// ends the name of the other one, a number of bytes.
const reference = name => `const int64_t* ${name}`;
export const integer = name => `integer(c_int64_t), intent(in) :: ${name}`;
export const kinds = {
  int: { c: reference, fortran: integer, shown: '64-bit integer' },
  logical: { c: reference, fortran: integer, shown: 'logical: 0 is false' },
  real: {
    c: name => `const double* ${name}`,
    fortran: name => `real(c_double), intent(in) :: ${name}`,
    shown: '64-bit real',
  },
  text: {
    c: name => `const char* ${name}`,
    fortran: name => `character(kind=c_char), intent(in) :: ${name}(*)`,
    second: 'Length',
    shown: 'text and its length in bytes',
  },
  obs: {
    c: name => `const void* ${name}`,
    fortran: name => `type(*), intent(in) :: ${name}(*)`,
    shown: 'cells of eight bytes',
  },
  ints: {
    c: reference,
    fortran: name => `integer(c_int64_t), intent(in) :: ${name}(*)`,
    shown: 'array of 64-bit integers',
  },
  reals: {
    c: name => `const double* ${name}`,
    fortran: name => `real(c_double), intent(in) :: ${name}(*)`,
    shown: 'array of 64-bit reals',
  },
  texts: {
    c: name => `const char* ${name}`,
    fortran: name => `character(kind=c_char), intent(in) :: ${name}(*)`,
    second: 'Length',
    shown: 'array of texts and the length of each in bytes',
  },
  count: { c: reference, fortran: integer, shown: '64-bit integer' },
  // Not intent(out): a call that fails leaves the outputs of later steps alone.
  out: {
    c: name => `int64_t* ${name}`,
    fortran: name => `integer(c_int64_t), intent(inout) :: ${name}`,
    shown: 'output, 64-bit integer',
  },
  buffer: {
    c: name => `char* ${name}`,
    fortran: name => `character(kind=c_char), intent(inout) :: ${name}(*)`,
    second: 'Capacity',
    shown: 'output, text and its room in bytes',
  },
  handle: {
    c: name => `void* ${name}`,
    fortran: name => `type(c_ptr), value :: ${name}`,
    shown: 'address',
  },
  dictionary: {
    c: name => `void* const* ${name}`,
    fortran: name => `type(c_ptr), intent(in) :: ${name}`,
    shown: 'address of a pointer',
  },
  ignored: { c: reference, fortran: integer, shown: 'never read' },
};

/** The groups of entry points, the extensions last, and what each argument means. */
export function readList(root) {
  const list = JSON.parse(readFileSync(join(root, listPath), 'utf8'));
  const groups = [...list.groups, ...list.extensions].map(group => ({
    ...group,
    entries: group.entries.map(entry => ({
      ...entry,
      arguments: entry.arguments.map(text => parseArgument(text, entry.name, list.arguments)),
    })),
  }));
  requireOnce(groups.flatMap(group => group.entries.map(entry => entry.name)));
  requireUsed(list.arguments, groups);
  return { groups, meanings: list.arguments };
}

function parseArgument(text, entryName, meanings) {
  // "name?" can be left out in Fortran, though what the argument means does not tell so.
  const [, kind, name, mark] = /^(\w+) (\w+)(\??)$/.exec(text);
  if (!(kind in kinds)) throw new Error(`${entryName}: there is no argument kind "${kind}"`);
  if (kind !== 'ignored' && !(name in meanings)) {
    throw new Error(`${entryName}: the argument "${name}" has no meaning in the list`);
  }
  return { kind, name, meaning: meanings[name], canBeAbsent: mark === '?' };
}

export function requireOnce(names) {
  const twice = names.find((name, index) => names.indexOf(name) !== index);
  if (twice) throw new Error(`${twice} stands in the list twice`);
}

function requireUsed(meanings, groups) {
  const used = new Set(groups.flatMap(g => g.entries).flatMap(e => e.arguments).map(a => a.name));
  const idle = Object.keys(meanings).find(name => !used.has(name));
  if (idle) throw new Error(`no entry point has an argument "${idle}"`);
}
