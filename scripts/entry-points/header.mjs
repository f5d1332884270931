// The C header.
import { kinds, madeFrom } from './list.mjs';
import { conventions, sentences, wrap, wrapList } from './text.mjs';

export function header({ groups, meanings }) {
  const lines = [
    '#ifndef CHARTXML_ENTRYPOINTS_H', '#define CHARTXML_ENTRYPOINTS_H', '',
    ...comment([madeFrom, 'The entry points for procedures, in C and C++.', ...conventions]), '',
    ...glossary(meanings), '',
    '#include <stdint.h>', '', '#include <chartxml/Export.h>', '',
    '/* clang-format off */',
    '#ifdef __cplusplus', 'extern "C" {', '#endif', '',
  ];
  for (const group of groups) {
    lines.push(`/* ${group.title} */`, '');
    for (const entry of group.entries) lines.push(...declaration(entry), '');
  }
  lines.push('#ifdef __cplusplus', '}', '#endif', '', '#endif');
  return lines;
}

/** What the arguments are, by their names. */
function glossary(meanings) {
  const lines = Object.entries(meanings).flatMap(([name, meaning]) =>
    wrap(`${name}: ${meaning}`, 92).map((line, index) => (index === 0 ? line : `    ${line}`)));
  return ['/* Arguments, by their names:', ' *', ...lines.map(line => ` * ${line}`), ' */'];
}

function comment(paragraphs) {
  const lines = paragraphs.flatMap(paragraph => ['', ...wrap(paragraph, 96)]).slice(1);
  return lines.map((line, index) => (index === 0 ? '/* ' : line ? ' * ' : ' *') + line)
    .concat(' */');
}

function declaration(entry) {
  const told = wrap(sentences(entry), 93);
  const parameters = entry.arguments.flatMap(parametersOf);
  const open = `CHARTXML_API int64_t ${entry.name}(`;
  return [
    ...told.map((line, index) =>
      (index === 0 ? '/** ' : ' *  ') + line + (index + 1 === told.length ? ' */' : '')),
    ...wrapList(open, parameters.length ? parameters : ['void'], ');', { hang: open.length }),
  ];
}

function parametersOf({ kind, name }) {
  const { c, second } = kinds[kind];
  return second ? [c(name), kinds.int.c(name + second)] : [c(name)];
}
