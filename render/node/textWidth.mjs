// Vega without a canvas takes every character for 0.8 of the font size, which
// pushes titles away from their axes. These are the widths of the faces that
// pictures are drawn in, so that the same chart gives the same picture on a machine
// without these faces too.

import table from '../font/advances.json' with {type: 'json'};

/** A character of Chinese, Japanese or Korean, which faces of Latin letters do not have. */
export const eastAsian =
  /[\p{Script=Han}\p{Script=Hiragana}\p{Script=Katakana}\p{Script=Hangul}\p{Script=Bopomofo}\u3000-\u303f\u30fb\u30fc\uff00-\uffef]/u;

const others = [
  {characters: /\p{M}|\p{Cf}|\p{Cc}/u, width: 0},
  {characters: /\p{Script=Hangul}/u, width: 0.92},
  {characters: /[\uff61-\uff9f]/u, width: 0.5},
  {characters: eastAsian, width: 1},
  {characters: /\p{Emoji_Presentation}/u, width: 1},
  {characters: /[^]/u, width: 0.65},
];

function advancesOf({em}, runs) {
  return runs.flatMap(([first, ...widths]) =>
    widths.map((width, i) => [String.fromCodePoint(first + i), width / em]));
}

const allOf = (style) => new Map(table.faces.flatMap((face) => advancesOf(face, face[style])));
const faces = {regular: allOf('regular'), bold: allOf('bold')};

const families = new Map(
  table.faces.flatMap((face) =>
    advancesOf(face, face.regular).map(([character]) => [character, face.family])));

/** The family that has the character; undefined when its widths are not known. */
export const familyOf = (character) => families.get(character);

/** The family that most characters are drawn in. */
export const firstFamily = table.faces[0].family;

function advance(character, face) {
  let width = face.get(character);
  if (width === undefined) {
    width = others.find(({characters}) => characters.test(character)).width;
    face.set(character, width);
  }
  return width;
}

/** How far the characters of a text move the pen, in pixels. */
export function advances(text, fontSize, fontWeight) {
  const face = fontWeight === 'bold' || fontWeight >= 600 ? faces.bold : faces.regular;
  let width = 0;
  for (const character of text) width += advance(character, face);
  return width * fontSize;
}

/** How wide a text is drawn, in pixels: blanks at its ends are not. */
export const textWidth = (text, fontSize, fontWeight) =>
  advances(String(text ?? '').trim(), fontSize, fontWeight);
