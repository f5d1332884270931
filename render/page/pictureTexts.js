// Pictures say what they show: a title and a description in SVG, text chunks in PNG.
// Shared by the page and the program that draws without a browser.

import {withOwnIds} from './ids.js';
import {patternsOf} from './patterns.js';

const escapes = {'&': '&amp;', '<': '&lt;', '>': '&gt;'};
const escape = (text) => text.replace(/[&<>]/g, (c) => escapes[c]);

/** The title and the description of a Vega chart. */
export const textsOfPicture = (spec) => ({
  title: spec.usermeta?.title ?? '',
  description: spec.description ?? '',
});

/** How much larger than its plot says a Vega chart is shown. */
export const magnificationOf = (spec) => spec.usermeta?.theme?.magnification ?? 1;

/**
 * Vega's SVG of a chart with its texts and its patterns as the first elements, and with ids
 * of its own.
 */
export function wholeSvg(svg, spec) {
  const {title, description} = textsOfPicture(spec);
  const texts = `<title>${escape(title)}</title><desc>${escape(description)}</desc>${patternsOf(spec)}`;
  return withOwnIds(svg.replace(/<svg[^>]*>/, (open) => open + texts));
}

/** A whole SVG with its letters, which are rules of CSS; there may be none. */
export const withLetters = (svg, fonts) =>
  fonts ? svg.replace('</desc>', `</desc><style>${fonts}</style>`) : svg;

const crcTable = Uint32Array.from({length: 256}, (_, byte) => {
  let code = byte;
  for (let bit = 0; bit < 8; ++bit) code = code & 1 ? (code >>> 1) ^ 0xedb88320 : code >>> 1;
  return code;
});

function crc(bytes) {
  let code = 0xffffffff;
  for (const byte of bytes) code = crcTable[(code ^ byte) & 0xff] ^ (code >>> 8);
  return ~code >>> 0;
}

/** An iTXt chunk: keyword, no compression, no language, then UTF-8. */
function textChunk(keyword, text) {
  const content = new TextEncoder().encode(`iTXt${keyword}\0\0\0\0\0${text}`);
  const chunk = new Uint8Array(content.length + 8);
  const view = new DataView(chunk.buffer);
  view.setUint32(0, content.length - 4);
  chunk.set(content, 4);
  view.setUint32(content.length + 4, crc(content));
  return chunk;
}

/** The PNG with them behind its header. */
export function pngWithTexts(png, {title, description}) {
  const header = 8 + 25; // the signature, and the chunk that comes first in every PNG
  const parts = [
    png.subarray(0, header), textChunk('Title', title), textChunk('Description', description),
    png.subarray(header),
  ];
  const result = new Uint8Array(parts.reduce((length, part) => length + part.length, 0));
  let at = 0;
  for (const part of parts) {
    result.set(part, at);
    at += part.length;
  }
  return result;
}
