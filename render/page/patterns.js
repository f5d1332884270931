// The patterns that fill bars and areas in a theme without colors. A Vega chart refers to
// them by id; what draws it places them. Shared by the page and the program that draws
// without a browser.

const ink = '#000000';
const paper = '#ffffff';

function pattern({id, size, path, width}) {
  const drawn = width > 0 ? `fill="none" stroke="${ink}" stroke-width="${width}"` : `fill="${ink}"`;
  return `<pattern id="${id}" patternUnits="userSpaceOnUse" width="${size}" height="${size}">` +
    `<rect width="${size}" height="${size}" fill="${paper}"/><path d="${path}" ${drawn}/></pattern>`;
}

/** The patterns of a Vega chart as an element of SVG; empty when it has none. */
export function patternsOf(spec) {
  const {patterns = []} = spec.usermeta?.theme ?? {};
  return patterns.length > 0 ? `<defs>${patterns.map(pattern).join('')}</defs>` : '';
}
