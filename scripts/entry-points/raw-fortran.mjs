// The entry points in Fortran as the library has them: a module of interfaces a group.
import { integer, kinds, madeFrom } from './list.mjs';
import { sentences, snakeCase, wrap, wrapList } from './text.mjs';

export const rawName = entry => entry.name.replace(/_$/, '').toLowerCase();
export const rawModule = group => `chartxml_raw_${group.id}`;

export function rawFortran(group) {
  const body = group.entries.flatMap(entry => ['', ...interfaceOf(entry)]);
  const types = ['c_char', 'c_double', 'c_int64_t', 'c_ptr']
    .filter(type => body.some(line => line.includes(`(${type})`) || line.includes(`=${type})`)));
  return [
    ...wrap(madeFrom, 98).map(line => `! ${line}`), '!',
    `! ${group.title}: the entry points as the library has them. Every integer is of kind`,
    '! c_int64_t, a logical is one, and a text goes with its length in bytes.',
    `module ${rawModule(group)}`,
    `  use, intrinsic :: iso_c_binding, only: ${types.join(', ')}`,
    '  implicit none',
    '  private',
    ...wrapList('  public :: ', group.entries.map(rawName), '', { breakMark: ' &' }), '',
    '  interface', ...body, '',
    '  end interface', '', 'end module',
  ];
}

function interfaceOf(entry) {
  const dummies = entry.arguments.flatMap(dummiesOf).map(({ name }) => name);
  const opening = `    integer(c_int64_t) function ${rawName(entry)}(`;
  const broken = { hang: 8, breakMark: ' &' };
  return [
    ...wrap(sentences(entry), 93).map(line => `    !> ${line}`),
    ...wrapList(opening, dummies, ')', { ...broken, tail: [`bind(C, name="${entry.name}")`] }),
    '      import',
    ...declarations(entry.arguments.flatMap(dummiesOf)).flatMap(({ attributes, names }) =>
      wrapList(`      ${attributes} :: `, names, '', broken)),
    '    end function',
  ];
}

function dummiesOf({ kind, name }) {
  const { fortran, second } = kinds[kind];
  const dummy = { name: snakeCase(name), declaration: fortran(snakeCase(name)) };
  if (!second) return [dummy];
  const bytes = snakeCase(name + second);
  return [dummy, { name: bytes, declaration: integer(bytes) }];
}

/** One declaration for each run of dummies of the same type. */
export function declarations(dummies) {
  const runs = [];
  for (const { declaration } of dummies) {
    const [attributes, dummy] = declaration.split(' :: ');
    if (runs.at(-1)?.attributes === attributes) runs.at(-1).names.push(dummy);
    else runs.push({ attributes, names: [dummy] });
  }
  return runs;
}
