// Writes render/font/coverage.json: the characters that the fonts of pictures have, read
// from the fonts' own tables. With --check it writes nothing and fails when the fonts that
// are installed lack one of the file's characters.
//
// usage: node scripts/generate-font-coverage.mjs [--check]
import {readFileSync, writeFileSync} from 'node:fs';
import {fileURLToPath} from 'node:url';

import {fontFiles} from '../render/node/fonts.mjs';

const output = fileURLToPath(new URL('../render/font/coverage.json', import.meta.url));

/** Where a table of a font begins; that of the first font of a collection. */
function tableAt(font, wanted) {
  const isCollection = font.toString('latin1', 0, 4) === 'ttcf';
  const directory = isCollection ? font.readUInt32BE(12) : 0;
  for (let i = 0; i < font.readUInt16BE(directory + 4); ++i) {
    const entry = directory + 12 + 16 * i;
    if (font.toString('latin1', entry, entry + 4) === wanted) return font.readUInt32BE(entry + 8);
  }
  throw new Error(`no table ${wanted}`);
}

/** The code points of a subtable in segments of 16 bits. */
function* segmentsOf16(font, at) {
  const bytes = font.readUInt16BE(at + 6);
  for (let i = 0; i < bytes; i += 2) {
    const end = font.readUInt16BE(at + 14 + i);
    const start = font.readUInt16BE(at + 16 + bytes + i);
    const delta = font.readUInt16BE(at + 16 + 2 * bytes + i);
    const offsetAt = at + 16 + 3 * bytes + i;
    const offset = font.readUInt16BE(offsetAt);
    for (let code = start; code <= end && code !== 0xffff; ++code) {
      const listed = offset === 0 ? code : font.readUInt16BE(offsetAt + offset + 2 * (code - start));
      const glyph = offset !== 0 && listed === 0 ? 0 : (listed + delta) & 0xffff;
      if (glyph !== 0) yield code;
    }
  }
}

/** The code points of a subtable in groups of 32 bits. */
function* groupsOf32(font, at) {
  for (let i = 0; i < font.readUInt32BE(at + 12); ++i) {
    const group = at + 16 + 12 * i;
    const [start, end, glyph] = [0, 4, 8].map((offset) => font.readUInt32BE(group + offset));
    for (let code = start; code <= end; ++code) if (glyph + code - start !== 0) yield code;
  }
}

const formats = new Map([[4, segmentsOf16], [12, groupsOf32]]);

function charactersOf(file) {
  const font = readFileSync(file);
  const cmap = tableAt(font, 'cmap');
  const characters = new Set();
  for (let i = 0; i < font.readUInt16BE(cmap + 2); ++i) {
    const [platform, at] = [font.readUInt16BE(cmap + 4 + 8 * i), cmap + font.readUInt32BE(cmap + 8 + 8 * i)];
    const read = formats.get(font.readUInt16BE(at));
    if (platform !== 1 && read) for (const code of read(font, at)) characters.add(code);
  }
  return characters;
}

/** Pairs of the first and the last code point of each run, one after the other. */
function rangesOf(characters) {
  const ranges = [];
  for (const code of [...characters].sort((a, b) => a - b)) {
    if (ranges.at(-1) === code - 1) ranges[ranges.length - 1] = code;
    else ranges.push(code, code);
  }
  return ranges;
}

function lines(numbers) {
  const perLine = 16;
  const rows = [];
  for (let i = 0; i < numbers.length; i += perLine) rows.push(numbers.slice(i, i + perLine).join(','));
  return `[\n${rows.join(',\n')}]`;
}

const characters = new Set(fontFiles().flatMap((file) => [...charactersOf(file)]));

if (process.argv[2] === '--check') {
  const {ranges} = JSON.parse(readFileSync(output, 'utf8'));
  const claimed = ranges.flatMap((first, i) =>
    i % 2 === 0 ? Array.from({length: ranges[i + 1] - first + 1}, (_, k) => first + k) : []);
  const missing = claimed.filter((code) => !characters.has(code));
  if (missing.length > 0) {
    const named = missing.slice(0, 10).map((code) => `U+${code.toString(16).toUpperCase().padStart(4, '0')}`);
    console.error(`${output} claims ${missing.length} characters that no font has: ${named.join(', ')}`);
    process.exit(1);
  }
} else {
  const about = 'The characters that the fonts of pictures have, as the first and the last code point ' +
    'of each run. Made by scripts/generate-font-coverage.mjs.';
  const ranges = lines(rangesOf(characters));
  writeFileSync(output, `{\n"about": ${JSON.stringify(about)},\n"ranges": ${ranges}\n}\n`);
}
