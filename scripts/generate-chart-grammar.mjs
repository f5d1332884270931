#!/usr/bin/env node
// Writes the reference page of the chart document from its schema. With --check it
// writes nothing and fails when the page differs from what it would write.
import { readFileSync, writeFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

const root = resolve(dirname(fileURLToPath(import.meta.url)), '..');
const schemaPath = 'schema/chart.xsd';
const pagePath = 'docs/chart-grammar.md';

// Reading the schema

/** The elements of an XML text. Enough for a schema: no text is kept but documentation. */
function parseXml(text, file) {
  const skipped = /<!--[\s\S]*?-->|<\?[\s\S]*?\?>/;
  const tags = /<(\/?)xs:(\w+)((?:\s+[\w:]+="[^"]*")*)\s*(\/?)>/;
  const token = new RegExp(`${skipped.source}|${tags.source}|[^<]+`, 'gy');
  const open = [{ children: [], text: '' }];
  while (token.lastIndex < text.length) {
    const at = token.lastIndex;
    const found = token.exec(text);
    if (!found) throw new Error(`${file}: can't read "${text.slice(at, at + 40)}"`);
    const [all, closes, tag, attributes, empty] = found;
    if (closes) open.pop();
    else if (tag) {
      const node = { tag, children: [], text: '', ...attributesOf(attributes) };
      open.at(-1).children.push(node);
      if (!empty) open.push(node);
    } else if (!all.startsWith('<')) open.at(-1).text += all;
  }
  return open[0].children[0];
}

const entities = { '&lt;': '<', '&gt;': '>', '&quot;': '"', '&amp;': '&' };
const plain = text => text.replace(/&\w+;/g, entity => entities[entity]);
const attributesOf = text => Object.fromEntries(
  [...text.matchAll(/([\w:]+)="([^"]*)"/g)].map(([, name, value]) => [name, plain(value)]));

const childOf = (node, tag) => node.children.find(child => child.tag === tag);
const childrenOf = (node, tag) => node.children.filter(child => child.tag === tag);

/** The paragraphs of a node's documentation, each on one line. */
function paragraphsOf(node) {
  const documentation = childrenOf(node, 'annotation').flatMap(a => childrenOf(a, 'documentation'));
  return documentation.flatMap(({ text }) => plain(text).split(/\n\s*\n/))
    .map(paragraph => paragraph.trim().replace(/\s+/g, ' ')).filter(Boolean);
}
const documentation = node => paragraphsOf(node).join(' ');

/** The schema with the files that it includes: what is in each, by kind and name. */
function readSchema() {
  const main = readFile(schemaPath);
  const included = childrenOf(main, 'include').map(({ schemaLocation }) =>
    readFile(join(dirname(schemaPath), schemaLocation)));
  const schema = { files: [main, ...included], complexType: {}, simpleType: {}, group: {},
    attributeGroup: {}, element: {} };
  for (const node of schema.files.flatMap(file => file.children)) {
    if (node.name) schema[node.tag][node.name] = node;
  }
  return schema;
}
const readFile = path => parseXml(readFileSync(join(root, path), 'utf8'), path);

// What stands where

const isLoose = group => group.startsWith('anywhere');
const particles = ['sequence', 'choice', 'group', 'element', 'complexContent', 'extension'];

/** The particle of a type, its base's first. */
const contentOf = type => type.children.filter(child => particles.includes(child.tag));

/** Elements that a particle names itself or by a group, unless they stand anywhere. */
function elementsIn(schema, particle) {
  if (particle.tag === 'element') return [particle];
  if (particle.tag === 'group' && particle.ref) {
    return isLoose(particle.ref) ? [] : elementsIn(schema, schema.group[particle.ref]);
  }
  return particle.children.flatMap(child => elementsIn(schema, child));
}

const usualOf = type => childrenOf(type, 'annotation').flatMap(a => childrenOf(a, 'appinfo'))
  .flatMap(({ text }) => text.trim().split(/\s+/));

/** The elements that a group takes anywhere, by name. */
function looseElements(schema, group = 'anywhere') {
  const visit = node => (node.tag === 'element' ? [node]
    : node.ref ? visit(schema.group[node.ref]) : node.children.flatMap(visit));
  return visit(schema.group[group]);
}

/** Every element by its name, with its type and the elements that it belongs in. */
function gatherElements(schema) {
  const loose = looseElements(schema);
  const known = new Map();
  const entryOf = ({ name, type }) => {
    const key = `${name} ${type}`;
    if (!known.has(key)) known.set(key, { name, type, parents: new Set() });
    return known.get(key);
  };
  entryOf(schema.element.graph);
  for (const type of Object.values(schema.complexType)) {
    contentOf(type).flatMap(particle => elementsIn(schema, particle))
      .forEach(element => entryOf(element).parents.add(type.name));
    for (const name of usualOf(type)) {
      const element = loose.find(candidate => candidate.name === name);
      if (!element) throw new Error(`${type.name}: ${name} does not stand anywhere`);
      entryOf(element).parents.add(type.name);
    }
  }
  loose.forEach(entryOf);
  return [...known.values()];
}

// The content model in the notation of regular expressions

const occurrence = ({ minOccurs = '1', maxOccurs = '1' }) => {
  if (maxOccurs === 'unbounded') return minOccurs === '0' ? '*' : '+';
  if (maxOccurs === '1') return minOccurs === '0' ? '?' : '';
  return minOccurs === maxOccurs ? `{${minOccurs}}` : `{${minOccurs},${maxOccurs}}`;
};
const isSingle = text => /^(\w+|\(.*\)|<.*>)$/.test(text) && !/\).*\(/.test(text);
const repeated = (text, node) => {
  const sign = occurrence(node);
  return !text || !sign ? text : `${isSingle(text) ? text : `(${text})`}${sign}`;
};

/** A particle without what stands anywhere; a documented group goes by its documentation. */
function modelOf(schema, node) {
  if (node.tag === 'element') return repeated(node.name, node);
  if (node.tag === 'group' && node.ref) {
    const group = schema.group[node.ref];
    if (isLoose(node.ref) || looseOwn(schema, node.ref).length > 0) return '';
    const text = documentation(group) ? `<${documentation(group)}>` : modelOf(schema, group);
    return repeated(text, node);
  }
  const parts = contentOf(node).map(child => modelOf(schema, child)).filter(Boolean);
  if (node.tag !== 'choice' || parts.length < 2) return repeated(joined(parts), node);
  return repeated(`(${parts.join(' | ')})`, node);
}
const joined = parts => parts.join(' ').replace(/\b(\w+) \1\*/g, '$1+');

/** What a group adds of its own to what stands anywhere: elements without an order. */
function looseOwn(schema, name) {
  const members = childOf(schema.group[name], 'choice')?.children ?? [];
  if (documentation(schema.group[name]) || !members.some(m => m.ref && isLoose(m.ref))) return [];
  return members.filter(member => member.tag === 'element').map(member => member.name);
}

/** The names of a type's children that have no place of their own. */
function unordered(schema, type) {
  const groups = node => (node.tag === 'group' && node.ref ? [node.ref]
    : node.children.flatMap(groups));
  const own = groups(type).flatMap(name => (isLoose(name) ? [] : looseOwn(schema, name)));
  return [...new Set([...own, ...usualOf(type)])];
}

// Attributes

function attributesIn(schema, type) {
  const content = childOf(type, 'complexContent');
  const extension = content && childOf(content, 'extension');
  const base = extension ? attributesIn(schema, schema.complexType[extension.base]) : [];
  return [...base, ...childrenOf(extension ?? type, 'attribute')];
}

const code = text => `\`${text}\``;
const cell = text => text.replaceAll('|', '\\|');

/** The values of an attribute: its own, or those of its type or the type's base. */
function valuesOf(schema, attribute) {
  if (attribute.fixed !== undefined) return code(attribute.fixed);
  let type = schema.simpleType[attribute.type];
  const listed = childrenOf(childOf(type, 'restriction'), 'enumeration').map(e => code(e.value));
  while (type && !documentation(type)) type = schema.simpleType[childOf(type, 'restriction').base];
  return [listed.join(', '), type && documentation(type)].filter(Boolean).join(', ');
}

function attributeTable(schema, attributes) {
  if (attributes.length === 0) return [];
  const rows = attributes.map(attribute => {
    const name = code(attribute.name) + (attribute.use === 'required' ? ', required' : '');
    return `| ${name} | ${cell(valuesOf(schema, attribute))} | ${cell(documentation(attribute))} |`;
  });
  return ['| Attribute | Values | Meaning |', '|---|---|---|', ...rows, ''];
}

// The page

const list = names => names.map(code).join(', ');
const madeFrom =
  'Made from schema/*.xsd by scripts/generate-chart-grammar.mjs: change the schema, not this file.';

function page(schema) {
  const elements = gatherElements(schema);
  const loose = new Set(looseElements(schema).map(element => element.name));
  const lines = ['# The chart document', '', `<!-- ${madeFrom} -->`, '',
    ...paragraphsOf(schema.files[0]).flatMap(paragraph => [paragraph, '']),
    `\`xmllint --noout --schema ${schemaPath} chart.xml\` checks a document.`, '',
    '## Reading this page', '',
    'The children of an element are told in their order, with `?` for at most one, `*` for any '
      + 'number, `+` for one or more and `|` between alternatives. An element is listed under the '
      + 'elements it belongs in.', '',
    ...names(schema), ...anywhere(schema, loose)];
  for (const file of schema.files) {
    const shown = elements.filter(e => file.children.includes(schema.complexType[e.type]));
    if (shown.length === 0) continue;
    const title = file === schema.files[0] ? 'The graph and its styles' : documentation(file);
    lines.push(`## ${title}`, '');
    for (const type of file.children.filter(node => node.tag === 'complexType')) {
      const named = shown.filter(element => element.type === type.name);
      if (named.length > 0) lines.push(...entry(schema, elements, type, named, loose));
    }
  }
  return lines;
}

const names = schema => ['## Names', '',
  ...schema.element.graph.children.map(documentation).filter(Boolean).map(text => `- ${text}`), ''];

function anywhere(schema, loose) {
  const attributes = schema.attributeGroup.attributesAnywhere.children
    .flatMap(({ ref }) => childrenOf(schema.attributeGroup[ref], 'attribute'));
  return ['## What stands anywhere', '',
    'Below most nodes the library takes some kinds of children whatever the node is: '
      + `${list([...loose].sort())}. They stand in any order, but for those that the node itself `
      + 'has in its list. The same is true of a few attributes. A reader passes over those that it '
      + 'has no use for.', '',
    ...attributeTable(schema, attributes)];
}

function entry(schema, elements, type, named, loose) {
  const parents = new Set(named.flatMap(element => [...element.parents]));
  const parentNames = [...new Set(
    elements.filter(element => parents.has(element.type)).map(element => element.name))].sort();
  const places = [parentNames.length > 0 && `In ${list(parentNames)}`,
    named.some(element => loose.has(element.name)) && 'taken anywhere'].filter(Boolean).join('; ');
  const model = joined(contentOf(type).map(particle => modelOf(schema, particle)).filter(Boolean));
  const free = unordered(schema, type);
  const lines = [`### ${named.map(element => code(element.name)).join(', ')}`, '',
    documentation(type), ''];
  if (places) lines.push(`${places[0].toUpperCase()}${places.slice(1)}.`, '');
  if (type.mixed) lines.push('Holds text.', '');
  if (model) lines.push('Children:', '', '```', model, '```', '');
  if (free.length > 0) lines.push(`Children at any place: ${list(free)}.`, '');
  return [...lines, ...attributeTable(schema, attributesIn(schema, type))];
}

// Writing and checking

function written() {
  try {
    return readFileSync(join(root, pagePath), 'utf8');
  } catch (error) {
    if (error.code === 'ENOENT') return '';
    throw error;
  }
}

function main(options) {
  const unknown = options.find(option => option !== '--check');
  if (unknown) throw new Error(`unknown option ${unknown}; the only one is --check`);
  const text = `${page(readSchema()).join('\n').trimEnd()}\n`;
  if (text === written()) return;
  if (options.includes('--check')) {
    console.error(`${pagePath} is not what schema/*.xsd say; `
      + 'run scripts/generate-chart-grammar.mjs');
    process.exitCode = 1;
  } else {
    writeFileSync(join(root, pagePath), text);
    console.log(`wrote ${pagePath}`);
  }
}

main(process.argv.slice(2));
