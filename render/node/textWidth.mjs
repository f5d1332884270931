// Vega without a canvas takes every character for 0.8 of the font size, which
// pushes titles away from their axes. These are the widths of the common
// sans-serif faces, on the wide side.

const classes = [
  {characters: /\p{M}|\p{Cf}|\p{Cc}/u, width: 0},
  {characters: /[ !'(),\-./:;I[\\\]fijlrt|]/u, width: 0.37},
  {characters: /[%@MWmw—…]/u, width: 0.97},
  {
    characters:
      /[\p{Script=Han}\p{Script=Hiragana}\p{Script=Katakana}\p{Script=Hangul}\u3000-\u303f\uff00-\uff60]|\p{Emoji_Presentation}/u,
    width: 1,
  },
  {characters: /\p{Lu}/u, width: 0.7},
  {characters: /[^]/u, width: 0.62},
];

const widthOfCharacter = new Map();

function advance(character) {
  let width = widthOfCharacter.get(character);
  if (width === undefined) {
    width = classes.find(({characters}) => characters.test(character)).width;
    widthOfCharacter.set(character, width);
  }
  return width;
}

/** About how wide a text is drawn, in pixels. */
export function textWidth(text, fontSize, fontWeight) {
  let width = 0;
  for (const character of String(text ?? '').trim()) width += advance(character);
  const isBold = fontWeight === 'bold' || fontWeight >= 600;
  return width * fontSize * (isBold ? 1.08 : 1);
}
