// Ids of a picture that no other picture has: many may stand in one page, where a reference
// finds the first of its name. They are made from the picture, so that the same one has the
// same bytes.

/** FNV-1a of the characters, in letters and digits. */
function hashOf(text) {
  let hash = 0x811c9dc5;
  for (let i = 0; i < text.length; ++i) hash = Math.imul(hash ^ text.charCodeAt(i), 0x01000193);
  return (hash >>> 0).toString(36);
}

const tags = /<[^>]*>/g;
const ids = / id="([^"]*)"/g;
const references = / (fill|stroke|clip-path|mask|filter)="url\(#([^)"]*)\)"/g;
const links = / ((?:xlink:)?href)="#([^"]*)"/g;

/** The SVG with the hash of what it shows before each id and in each reference to one. */
export function withOwnIds(svg) {
  const prefix = `p${hashOf(svg)}-`;
  return svg.replace(tags, (tag) =>
    tag.replace(ids, ` id="${prefix}$1"`)
      .replace(references, ` $1="url(#${prefix}$2)"`)
      .replace(links, ` $1="#${prefix}$2"`));
}
