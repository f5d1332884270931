// The patterns that fill bars and areas: black on white, or in a color on a tint of it. A
// Vega chart refers to them by id; what draws it places them. Shared by the page and the
// program that draws without a browser.

const tint = 0.25;

function pattern({id, size, path, width, color, paper = '#ffffff'}) {
  const ink = color ?? '#000000';
  const drawn = width > 0 ? `fill="none" stroke="${ink}" stroke-width="${width}"` : `fill="${ink}"`;
  const tile = (fill) => `<rect width="${size}" height="${size}" fill="${fill}"/>`;
  const ground = color ? tile(`${color}" fill-opacity="${tint}`) : '';
  return `<pattern id="${id}" patternUnits="userSpaceOnUse" width="${size}" height="${size}">` +
    `${tile(paper)}${ground}<path d="${path}" ${drawn}/></pattern>`;
}

/** The patterns of a Vega chart as an element of SVG; empty when it has none. */
export function patternsOf(spec) {
  const {patterns = []} = spec.usermeta?.theme ?? {};
  return patterns.length > 0 ? `<defs>${patterns.map(pattern).join('')}</defs>` : '';
}
