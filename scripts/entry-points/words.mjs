// Names for the predefined strings and the roles in Fortran, from the library's own tables.
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { requireOnce } from './list.mjs';
import { snakeCase, wrap } from './text.mjs';

const vocabulary = 'backend/chartxml/src/chartstringhandler/Vocabulary.h';
const roles = 'backend/chartxml/src/role/Role.cpp';
const members = ['host/include/host/ZephUni.h', 'host/include/host/ChartBase.h'];

export function words(root) {
  const read = path => readFileSync(join(root, path), 'utf8');
  const texts = Object.fromEntries(members.flatMap(path =>
    [...read(path).matchAll(/ (_\w+)\[\] = u"([^"]*)"/g)].map(([, name, text]) => [name, text])));
  const rows = [...read(vocabulary).matchAll(/\{(\d+), (?:\w+::(_\w+)|u?"([^"]*)")\}/g)];
  const strings = rows.map(([, handle, member, text]) => [Number(handle), text ?? texts[member]])
    .sort(([one], [other]) => one - other);
  const constants = [
    ...strings.map(([handle, text]) => ({ name: nameOf('string', text), value: handle, text })),
    ...roleNames(read(roles))
      .map((text, i) => ({ name: nameOf('role', text), value: i + 1, text })),
  ];
  requireOnce(constants.map(({ name }) => name));
  return [
    ...wrap(`Made from ${vocabulary} and ${roles} by scripts/generate-entry-points.mjs: change `
      + 'those, not this file.', 98).map(line => `! ${line}`), '!',
    '! String handles of the predefined words, and the numbers of the roles.',
    'module chartxml_words', '  implicit none', '  private', '',
    ...constants.map(({ name, value, text }) =>
      `  integer, parameter, public :: ${name} = ${value}  !< "${text}"`),
    '', 'end module',
  ];
}

const nameOf = (kind, text) => `${kind}_${snakeCase(text).replace(/[\W_]+/g, '_')}`;

const roleNames = source =>
  /names\{"",([^}]*)\}/.exec(source)[1].match(/\w+/g);
