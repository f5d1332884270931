// The reference page.
import { call } from './fortran.mjs';
import { kinds, madeFrom } from './list.mjs';
import { conventions, sentences, wrap, wrapList } from './text.mjs';

export function page({ groups, meanings }) {
  const lines = ['# Entry points', '', `<!-- ${madeFrom} -->`, '',
    ...conventions.flatMap(paragraph => [...wrap(paragraph, 100), '']),
    'In C `#include <chartxml/EntryPoints.h>`; in Fortran `use chartxml`, which has each entry',
    'point twice: as it is, without the trailing underscore and with `x_domain` for `xDomain`, and',
    'as [Fortran](fortran.md) would have it, which is told below the entry point.', ''];
  for (const group of groups) {
    lines.push(`## ${group.title}`, '');
    for (const entry of group.entries) lines.push(...pageEntry(entry), '');
  }
  return [...lines, '## Arguments', '', ...argumentTable(groups, meanings)];
}

function pageEntry(entry) {
  const names = entry.arguments
    .map(({ kind, name }) => (['out', 'buffer'].includes(kind) ? `out ${name}` : name));
  const calls = entry.operation ? [`Calls: ${entry.operation}.`] : [];
  return [`### ${entry.name}`, '', '```', ...wrapList(`${entry.name}(`, names, ')'),
    ...call(entry), '```', '', ...wrap([sentences(entry), ...calls].join(' '), 100)];
}

function argumentTable(groups, meanings) {
  const kindOf = Object.fromEntries(
    groups.flatMap(group => group.entries).flatMap(e => e.arguments).map(a => [a.name, a.kind]));
  const rows = Object.entries(meanings)
    .map(([name, meaning]) => `| \`${name}\` | ${kinds[kindOf[name]].shown} | ${meaning} |`);
  return ['| Name | Passed as | Meaning |', '|---|---|---|', ...rows];
}
