// Draws each character of an SVG in a face that has it.
//
// A browser looks for every character along the list of families. The renderer of
// bitmaps takes the first family for a whole text and, when one character is missing
// there, any other face for all of it. So texts are cut into runs of one face, each at
// a place of its own.

import {advances, eastAsian, familyOf, firstFamily} from './textWidth.mjs';

const named = {'&amp;': '&', '&lt;': '<', '&gt;': '>', '&quot;': '"', '&#39;': "'"};
const escapes = {'&': '&amp;', '<': '&lt;', '>': '&gt;'};
const plain = (escaped) => escaped.replaceAll(/&[^;]+;/g, (entity) => named[entity] ?? entity);
const escape = (text) => text.replaceAll(/[&<>]/g, (character) => escapes[character]);

/** Scripts written from right to left, whose runs would have to change places. */
export const rightToLeft = /[\p{Script=Hebrew}\p{Script=Arabic}\p{Script=Syriac}\p{Script=Thaana}]/u;
const mark = /\p{M}|\p{Cf}/u;

/** The family for a character, among those that the text names. */
function faceOf(character, families) {
  const known = familyOf(character);
  if (known !== undefined) return known;
  const named = eastAsian.test(character) ? /Noto Sans CJK \w+/.exec(families) : null;
  return named?.[0] ?? 'sans-serif';
}

function runsOf(text, families) {
  const runs = [];
  for (const character of text) {
    const last = runs.at(-1);
    const family = last && mark.test(character) ? last.family : faceOf(character, families);
    if (last?.family === family) last.text += character;
    else runs.push({family, text: character});
  }
  return runs;
}

/** How far left of its anchor a text begins, as a share of its width. */
const shareOfAnchor = {start: 0, middle: 0.5, end: 1};

function cutLine(line, attributes, {families, anchor, widthOf}) {
  const text = plain(line);
  let x = -shareOfAnchor[anchor] * widthOf(text);
  const placed = runsOf(text, families).map((run, i) => {
    const face = run.family === firstFamily ? '' : ` font-family="${run.family}"`;
    const tspan = `<tspan x="${x.toFixed(2)}"${i === 0 ? attributes : ''}${face}>${escape(run.text)}</tspan>`;
    x += widthOf(run.text);
    return tspan;
  });
  return placed.join('');
}

function cutText(open, content) {
  const attribute = (name, otherwise) => new RegExp(` ${name}="([^"]*)"`).exec(open)?.[1] ?? otherwise;
  const families = attribute('font-family', '');
  const text = plain(content.replaceAll(/<[^>]*>/g, ''));
  const isOfOneFace = runsOf(text, families).every(({family}) => family === firstFamily);
  if (isOfOneFace || rightToLeft.test(text)) return open + content;

  const fontSize = parseFloat(attribute('font-size', '11'));
  const fontWeight = attribute('font-weight', 'normal');
  const layout = {
    families,
    anchor: attribute('text-anchor', 'start'),
    widthOf: (characters) => advances(characters, fontSize, fontWeight),
  };
  const lines = content.startsWith('<tspan')
    ? content.replaceAll(/<tspan([^>]*)>(.*?)<\/tspan>/gs, (_, attributes, line) =>
        cutLine(line, attributes.replace(/ x="[^"]*"/, ''), layout))
    : cutLine(content, '', layout);
  return open.replace(/ text-anchor="[^"]*"/, '') + lines;
}

/** The SVG with its texts cut into runs of one face. */
export const nameFaces = (svg) =>
  svg.replaceAll(/(<text[^>]*(?<!\/)>)(.*?)(?=<\/text>)/gs, (_, open, content) => cutText(open, content));
