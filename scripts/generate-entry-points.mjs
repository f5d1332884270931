#!/usr/bin/env node
// Writes what is made from the list of entry points: the C header, the Fortran
// module and the reference page. With --check it writes nothing and fails when one
// of them differs from what it would write.
import { readFileSync, writeFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

const root = resolve(dirname(fileURLToPath(import.meta.url)), '..');
const listPath = 'backend/chartxml/entrypoints.json';

// What an argument of each kind is in C and in Fortran. A text is two arguments,
// the second of which is its length.
const reference = name => `const int64_t* ${name}`;
const integer = name => `integer(c_int64_t), intent(in) :: ${name}`;
const kinds = {
  int: { c: reference, fortran: integer, shown: '64-bit integer' },
  logical: { c: reference, fortran: integer, shown: 'logical: 0 is false' },
  real: {
    c: name => `const double* ${name}`,
    fortran: name => `real(c_double), intent(in) :: ${name}`,
    shown: '64-bit real',
  },
  text: {
    c: name => `const char* ${name}, const int64_t* ${name}Length`,
    fortran: name => `character(kind=c_char), intent(in) :: ${name}(*)`,
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
  // Not intent(out): a call that fails leaves the outputs of later steps alone.
  out: {
    c: name => `int64_t* ${name}`,
    fortran: name => `integer(c_int64_t), intent(inout) :: ${name}`,
    shown: 'output, 64-bit integer',
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

function readList() {
  const list = JSON.parse(readFileSync(join(root, listPath), 'utf8'));
  const groups = list.groups.map(group => ({
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
  const [kind, name] = text.split(' ');
  if (!(kind in kinds)) throw new Error(`${entryName}: there is no argument kind "${kind}"`);
  if (kind !== 'ignored' && !(name in meanings)) {
    throw new Error(`${entryName}: the argument "${name}" has no meaning in the list`);
  }
  return { kind, name };
}

function requireOnce(names) {
  const twice = names.find((name, index) => names.indexOf(name) !== index);
  if (twice) throw new Error(`${twice} stands in the list twice`);
}

function requireUsed(meanings, groups) {
  const used = new Set(groups.flatMap(g => g.entries).flatMap(e => e.arguments).map(a => a.name));
  const idle = Object.keys(meanings).find(name => !used.has(name));
  if (idle) throw new Error(`no entry point has an argument "${idle}"`);
}

// Texts

const paragraphs = text => text.trim().split('\n\n').map(part => part.replaceAll('\n', ' '));

/** Breaks a text into lines of at most `width` characters. */
function wrap(text, width) {
  const lines = [''];
  for (const word of text.split(' ')) {
    const line = lines.at(-1);
    if (line && line.length + 1 + word.length > width) lines.push(word);
    else lines[lines.length - 1] = line ? `${line} ${word}` : word;
  }
  return lines;
}

/** A line that goes on over further lines, which are indented by `hang`: `open`, the items with
 *  commas between them, `close`, and words that may each stand on a line of their own. */
function wrapList(open, items, close, { width = 100, hang = 4, breakMark = '', tail = [] } = {}) {
  const listed = items.map((item, index) => item + (index + 1 < items.length ? ',' : close));
  const lines = [items.length ? open : open + close];
  for (const [index, word] of [...listed, ...tail].entries()) {
    const gap = index === 0 && items.length ? '' : ' ';
    if (`${lines.at(-1)}${gap}${word}${breakMark}`.length <= width) {
      lines[lines.length - 1] += gap + word;
    } else {
      lines[lines.length - 1] += breakMark;
      lines.push(' '.repeat(hang) + word);
    }
  }
  return lines;
}

const snakeCase = name => name.replace(/[A-Z]/g, letter => `_${letter.toLowerCase()}`);
const sentences = entry =>
  [entry.does, `Returns ${entry.returns}.`, entry.reports && `Reports ${entry.reports}.`]
    .filter(Boolean).join(' ');
const conventions = paragraphs(`
Calling convention. Every argument is passed by its address, all but the procedure handle, which
is an address itself. Integers have 64 bits: the library reads the low 32 as a signed number, but
entry points of several steps compare all 64, so store every integer sign-extended; results and
outputs come back sign-extended. A logical is an integer: 0 is false, any other value true. Reals
have 64 bits.

A text is the address of its first byte, then the address of its length: exactly that many bytes
in the process code page (UTF-8 unless the host says otherwise), without terminator, trailing
blanks kept. Bytes that are not valid become U+FFFD; a negative length is an empty text. Arguments
named "ignored" are never read.

Handles. Charts count from 0; nodes count from 0 within their chart, and node 0 is its document
element; texts have string handles, 1 to 156 of which are predefined. Handles are numbers and need
no release. Variables go by the number that the procedure has for them, from 1.

Ownership. The library copies texts and cells during the call and keeps no address of them. The
dictionary stays the procedure's; keep its data set open until the charts are ended.

The value -1 means "absent" where an integer is optional, and failure where it is returned. A check
that fails changes nothing, but for strings made on the way; an entry point of several steps ends
at the first that fails, keeps the nodes of the others, and leaves the outputs of later steps
alone. Ending a chart consumes it also when it cannot be sent.

Errors. Nothing is thrown or raised. What is refused is reported in one line, with the reason, to
the host's error log: a bad chart, node or string handle by every entry point, the rest as told
with each. "Silently" means without a report. Call from one thread.`);
const fortranIntroduction = `
The entry points for procedures, as the library has them. A text is passed with its length in
bytes; integers are of kind c_int64_t. Module charts beside this one takes texts as Fortran has
them.`;
const madeFrom =
  `Made from ${listPath} by scripts/generate-entry-points.mjs: change the list, not this file.`;

// The C header

function header({ groups }) {
  const lines = [
    '#ifndef CHARTXML_ENTRYPOINTS_H', '#define CHARTXML_ENTRYPOINTS_H', '',
    ...cComment([madeFrom, 'The entry points for procedures, in C and C++.', ...conventions]), '',
    '#include <stdint.h>', '', '#include <chartxml/Export.h>', '',
    '/* clang-format off */',
    '#ifdef __cplusplus', 'extern "C" {', '#endif', '',
  ];
  for (const group of groups) {
    lines.push(`/* ${group.title} */`, '');
    for (const entry of group.entries) lines.push(...cDeclaration(entry), '');
  }
  lines.push('#ifdef __cplusplus', '}', '#endif', '', '#endif');
  return lines;
}

function cComment(paragraphs) {
  const lines = paragraphs.flatMap(paragraph => ['', ...wrap(paragraph, 96)]).slice(1);
  return lines.map((line, index) => (index === 0 ? '/* ' : line ? ' * ' : ' *') + line)
    .concat(' */');
}

function cDeclaration(entry) {
  const comment = wrap(sentences(entry), 93);
  const parameters = entry.arguments.flatMap(a => kinds[a.kind].c(a.name).split(', '));
  const open = `CHARTXML_API int64_t ${entry.name}(`;
  return [
    ...comment.map((line, index) =>
      (index === 0 ? '/** ' : ' *  ') + line + (index + 1 === comment.length ? ' */' : '')),
    ...wrapList(open, parameters.length ? parameters : ['void'], ');', { hang: open.length }),
  ];
}

// The Fortran module

function fortranModule({ groups }) {
  const names = groups.flatMap(group => group.entries).map(fortranName);
  const lines = [
    ...wrap(madeFrom, 98).map(line => `! ${line}`), '!',
    ...[...paragraphs(fortranIntroduction), ...conventions]
      .flatMap(paragraph => [...wrap(paragraph, 98).map(line => `! ${line}`), '!']).slice(0, -1),
    'module chartxml',
    '  use, intrinsic :: iso_c_binding, only: c_char, c_double, c_int64_t, c_ptr',
    '  implicit none',
    '  private',
    ...wrapList('  public :: ', names, '', { breakMark: ' &' }), '',
    '  interface',
  ];
  for (const group of groups) {
    lines.push('', `    ! ${group.title}`);
    for (const entry of group.entries) lines.push('', ...fortranInterface(entry));
  }
  lines.push('', '  end interface', '', 'end module');
  return lines;
}

const fortranName = entry => entry.name.replace(/_$/, '').toLowerCase();

function fortranInterface(entry) {
  const dummies = entry.arguments.flatMap(({ kind, name }) =>
    kind === 'text' ? [snakeCase(name), `${snakeCase(name)}_length`] : [snakeCase(name)]);
  const opening = `    integer(c_int64_t) function ${fortranName(entry)}(`;
  const broken = { hang: 8, breakMark: ' &' };
  return [
    ...wrap(sentences(entry), 93).map(line => `    !> ${line}`),
    ...wrapList(opening, dummies, ')', { ...broken, tail: [`bind(C, name="${entry.name}")`] }),
    '      import',
    ...fortranDeclarations(entry.arguments).flatMap(({ attributes, names }) =>
      wrapList(`      ${attributes} :: `, names, '', broken)),
    '    end function',
  ];
}

/** One declaration for each run of arguments of the same type. */
function fortranDeclarations(args) {
  const runs = [];
  for (const { kind, name } of args) {
    const declared = [kinds[kind].fortran(snakeCase(name))];
    if (kind === 'text') declared.push(integer(`${snakeCase(name)}_length`));
    for (const declaration of declared) {
      const [attributes, dummy] = declaration.split(' :: ');
      if (runs.at(-1)?.attributes === attributes) runs.at(-1).names.push(dummy);
      else runs.push({ attributes, names: [dummy] });
    }
  }
  return runs;
}

// The reference page

function page({ groups, meanings }) {
  const lines = ['# Entry points', '', `<!-- ${madeFrom} -->`, '',
    ...conventions.flatMap(paragraph => [...wrap(paragraph, 100), '']),
    'In C `#include <chartxml/EntryPoints.h>`; in Fortran `use chartxml`, where the names have no',
    'trailing underscore and an argument such as `xDomain` is `x_domain`.', ''];
  for (const group of groups) {
    lines.push(`## ${group.title}`, '');
    for (const entry of group.entries) lines.push(...pageEntry(entry), '');
  }
  return [...lines, '## Arguments', '', ...argumentTable(groups, meanings)];
}

function pageEntry(entry) {
  const names = entry.arguments.map(a => (a.kind === 'out' ? `out ${a.name}` : a.name));
  const calls = entry.operation ? [`Calls: ${entry.operation}.`] : [];
  return [`### ${entry.name}`, '', '```', ...wrapList(`${entry.name}(`, names, ')'), '```',
    '', ...wrap([sentences(entry), ...calls].join(' '), 100)];
}

function argumentTable(groups, meanings) {
  const kindOf = Object.fromEntries(
    groups.flatMap(group => group.entries).flatMap(e => e.arguments).map(a => [a.name, a.kind]));
  const rows = Object.entries(meanings)
    .map(([name, meaning]) => `| \`${name}\` | ${kinds[kindOf[name]].shown} | ${meaning} |`);
  return ['| Name | Passed as | Meaning |', '|---|---|---|', ...rows];
}

// Writing and checking

const outputs = [
  ['backend/chartxml/include/chartxml/EntryPoints.h', header],
  ['fortran/chartxml.f90', fortranModule],
  ['docs/entry-points.md', page],
];

function written(path) {
  try {
    return readFileSync(join(root, path), 'utf8');
  } catch (error) {
    if (error.code === 'ENOENT') return '';
    throw error;
  }
}

function main(options) {
  const unknown = options.find(option => option !== '--check');
  if (unknown) throw new Error(`unknown option ${unknown}; the only one is --check`);
  const list = readList();
  for (const [path, make] of outputs) {
    const text = `${make(list).join('\n')}\n`;
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
