// The procedures between them call every entry point of several steps and draw every
// curve model, by its own name or through a Fortran procedure that calls it.
//
// usage: node coverage.mjs <source tree>
import {readdirSync, readFileSync} from 'node:fs';
import {join} from 'node:path';

const root = process.argv[2];
const read = (...path) => readFileSync(join(root, ...path), 'utf8');

// An entry point that forwards has one operation and its name; one of several steps lists
// the steps, or is made of other entry points. What starts the library is left out.
const isOfSeveralSteps = ({name, operation = ''}) =>
  /,|^cx_/.test(operation) && !['cx_init_', 'cx_createchart_'].includes(name);
const isModel = ({name}) => name.startsWith('cx_addyofx');
const wanted = JSON.parse(read('backend', 'chartxml', 'entrypoints.json'))
  .groups.flatMap((group) => group.entries)
  .filter((entry) => isOfSeveralSteps(entry) || isModel(entry))
  .map((entry) => entry.name.replace(/_$/, ''));

const withoutComments = (source) => source.replace(/![^\n']*(?=\n)/g, '');
const calls = (source, name) => new RegExp(`\\b${name}\\s*\\(`, 'i').test(source);

const sourcesBelow = (folder, keep = () => true) =>
  readdirSync(join(root, folder), {recursive: true})
    .filter((name) => name.endsWith('.f90') && keep(name))
    .map((name) => withoutComments(read(folder, name)))
    .join('\n');
const programs = sourcesBelow('procedures');
// Module files of interfaces alone call nothing.
const helpers = [...sourcesBelow('fortran', (name) => !name.startsWith('raw')).matchAll(
  /^ {2}(?:[\w() ]+ )?(?:function|subroutine) (\w+)\([\s\S]*?^ {2}end (?:function|subroutine)/gm)];

const isCalled = (entry) =>
  calls(programs, entry) ||
  helpers.some(([body, helper]) => calls(body, entry) && calls(programs, helper));

const missing = wanted.filter((entry) => !isCalled(entry));
missing.forEach((entry) => console.error(`no procedure calls ${entry}`));
if (wanted.length < 29) console.error(`found only ${wanted.length} entry points to look for`);
process.exit(missing.length === 0 && wanted.length >= 29 ? 0 : 1);
