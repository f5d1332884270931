// Makes the output folder that the pages are tried in.
//
// usage: node charts.mjs <build folder> <output folder>
import {execFileSync} from 'node:child_process';
import {copyFileSync, mkdirSync, readdirSync, rmSync, writeFileSync} from 'node:fs';
import {join, resolve} from 'node:path';
import {attack, folders, nameOfHostile, rowsOfBig} from './names.mjs';

const [build, output] = process.argv.slice(2).map((path) => resolve(path));
const root = resolve(import.meta.dirname, '../..');

const document = ({label, id, relabels = '', title, element = 'points'}) => `<graph name="n">
<source id="source0"><otherAccess type="object"/></source>
<variable id="v1" sourceName="A" source="source0" categorical="false" label="${label}"/>
<variable id="v2" sourceName="B" source="source0" categorical="false" label="b"/>
<variable id="${id}" sourceName="Group" source="source0" categorical="true" label="${label}">${relabels}</variable>
<frame id="outer"><label id="label_title">${title}</label><frame id="data">
<dimension role="x"><axis><majorTicks/></axis></dimension>
<dimension role="y"><axis><majorTicks/></axis></dimension>
<element type="point" id="${element}"><x variable="v1"/><y variable="v2"/>
<styleBy variable="${id}" id="by" styleCycle="c"/></element>
<legend id="legend"><legendTarget id="target" element="${element}"/></legend></frame></frame></graph>`;

const escape = (text) =>
  text.replace(/[&<>"]/g, (c) => `&#${c.charCodeAt(0)};`).replaceAll('\n', '&#10;');

function writeChart(name, manifest, xml, csv) {
  const folder = join(output, name);
  mkdirSync(folder);
  writeFileSync(join(folder, 'chart.xml'), xml);
  writeFileSync(join(folder, 'manifest.json'), JSON.stringify(manifest));
  writeFileSync(join(folder, 'source0.csv'), csv);
}

function runProcedure(name, language, folder = output) {
  execFileSync(join(build, 'bin/procedures', name), [], {
    cwd: root, env: {...process.env, CHARTXML_OUTPUT: folder, CHARTXML_LANG: language}, stdio: 'inherit',
  });
}

/** The pages of every procedure, each in a folder of its own. */
function runAll(folder) {
  rmSync(folder, {recursive: true, force: true});
  for (const name of readdirSync(join(build, 'bin/procedures'))) {
    mkdirSync(join(folder, name), {recursive: true});
    runProcedure(name, 'en', join(folder, name));
  }
}

const columnsOfWide = 60;

/** Bars of two groups, a line of another source with an own format and value label, and many columns. */
function writeTheme(name, template) {
  const variable = (id, source, category, more = '') =>
    `<variable id="${id}" sourceName="${id}" source="${source}" categorical="${category}" label="${id.toUpperCase()}">${more}</variable>`;
  const wide = Array.from({length: columnsOfWide}, (_, i) => variable(`c${i}`, 'other', false)).join('');
  writeChart(name, {name: template, template, language: 'en'}, `<graph name="n">
<source id="source0"><otherAccess type="object"/></source><source id="other"><otherAccess type="object"/></source>
${variable('x', 'source0', true)}${variable('g', 'source0', true)}${variable('y', 'source0', false)}
${variable('when', 'other', true, '<relabel from="1" to="First"/>')}${wide}
<frame id="outer"><label id="label_title">${template}</label><frame id="data">
<dimension role="x"><axis><majorTicks/></axis></dimension><dimension role="y"><axis><majorTicks/></axis></dimension>
<element type="interval" id="bars" positionModifier="dodge"><x variable="x"/><y variable="y"/><color variable="g"/></element>
<legend id="legend"><legendTarget id="target" element="bars"/></legend></frame></frame></graph>`,
  'x,g,y\na,p,4\na,q,3\nb,p,2\nb,q,5\n');
  const names = ['when', ...Array.from({length: columnsOfWide}, (_, i) => `c${i}`)];
  const row = (when) => [when, ...Array.from({length: columnsOfWide}, (_, i) => i / 8)].join();
  writeFileSync(join(output, name, 'other.csv'), `${names.join()}\n${row(1)}\n${row(2)}\n`);
}

/** Every place that a text of the user's can come from holds one that tries to get out. */
function writeHostile() {
  const text = escape(attack);
  const relabels = `<relabel from="a" to="${text}"/>`;
  const quoted = `"${attack.replaceAll('"', '""')}"`;
  const csv = `A,B,Group\n1,2,a\n2,3,${quoted}\n3,5,=1+1\n4,4,constructor\n5,3,__proto__\n`;
  writeChart(folders.hostile,
    {name: nameOfHostile, description: attack, splitHeader: attack, language: attack},
    document({label: text, id: text, relabels, title: text, element: `e${text}`}), csv);
  writeFileSync(join(output, 'procedures', `${nameOfHostile}.<img src=x onerror=alert(1)>`), attack);
}

function writeBig() {
  let csv = 'A,B,Group\n';
  for (let i = 0; i < rowsOfBig; ++i) csv += `${i},${(i * 7919) % 1000},${i % 2 ? 'odd' : 'even'}\n`;
  writeChart(folders.big, {name: 'big', language: 'de'},
    document({label: 'Row', id: 'v3', title: 'Many rows'}), csv);
}

/** Letters of all fonts, marks that stand on them, and scripts of other reading directions. */
function writeLetters(name) {
  writeChart(name, {name: 'letters', language: 'en'},
    document({label: 'x\u0304 ⇒ e\u0301, Größe, Доля, ½', id: 'v3', title: 'ŷ = β₁x\u0304 年 שלום'}), 'A,B,Group\n1,2,ǅ\n2,3,한\n');
}

rmSync(output, {recursive: true, force: true});
mkdirSync(output, {recursive: true});
runProcedure('penguins', 'en');
runProcedure('economics', 'ja');
mkdirSync(join(output, 'procedures'));
copyFileSync(join(root, 'procedures/penguins.f90'), join(output, 'procedures/penguins.f90'));
writeHostile();
writeBig();
for (const template of ['print', 'dark', 'presentation']) writeTheme(folders[template], template);
writeLetters(folders.letters);
writeLetters(folders.withoutFonts);
const render = (folder, environment) => execFileSync(join(build, 'bin/chartxml'), ['render', folder, '--svg'],
  {stdio: 'inherit', env: {...process.env, ...environment}});
render(output, {});
render(join(output, folders.withoutFonts), {CHARTXML_FONTS: join(output, 'procedures')});
runAll(join(output, '../procedures'));
