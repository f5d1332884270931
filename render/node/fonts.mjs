// The faces that a bitmap is drawn with.
//
// To read every face of a machine takes longer than to draw a chart. Where all characters
// of a picture are in the faces whose widths are known, and these are found, they are
// enough; the picture is the same.

import {readdirSync} from 'node:fs';
import {homedir} from 'node:os';
import {join} from 'node:path';
import {eastAsian, familyOf} from './textWidth.mjs';

const folders = ['/usr/share/fonts', '/usr/local/share/fonts',
  join(homedir(), '.local/share/fonts'), join(homedir(), '.fonts')];
const latin = ['LiberationSans-Regular.ttf', 'LiberationSans-Bold.ttf', 'DejaVuSans.ttf', 'DejaVuSans-Bold.ttf'];
const eastern = [...latin, 'NotoSansCJK-Regular.ttc', 'NotoSansCJK-Bold.ttc'];

function filesBelow(folder) {
  try {
    return readdirSync(folder, {recursive: true}).map((file) => join(folder, file));
  } catch {
    return []; // it need not be there
  }
}

let all;

/** The paths of these files; null when one is missing. */
function find(names) {
  all ??= folders.flatMap(filesBelow);
  const found = names.map((name) => all.find((file) => file.endsWith(`/${name}`)));
  return found.every(Boolean) ? found : null;
}

const isLatin = (character) => character === '\n' || familyOf(character) !== undefined;
const isEastern = (character) => eastAsian.test(character) && character.length === 1;

/** The files that have all characters; null where that is not known. */
function filesOf(characters) {
  const others = characters.filter((character) => !isLatin(character));
  if (others.length === 0) return find(latin);
  return others.every(isEastern) ? find(eastern) : null;
}

/** What the renderer of bitmaps is told of the faces for an SVG. */
export function fontsOf(svg) {
  const characters = new Set(svg.replaceAll(/<[^>]*>/g, ''));
  const files = filesOf([...characters]);
  const faces = files ? {loadSystemFonts: false, fontFiles: files} : {loadSystemFonts: true};
  return {...faces, defaultFontFamily: 'DejaVu Sans'};
}
