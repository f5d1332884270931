// Pictures that nobody can look at: their bitmaps would take all memory, or end the process.

const longestSide = 16384;
const largestArea = 4096 * 4096;

/** Throws for a size in pixels that no picture has. */
export function checkSize(width, height) {
  const isSound = width <= longestSide && height <= longestSide && width * height <= largestArea;
  if (isSound) return;
  throw new Error(`it would be ${Math.ceil(width)} by ${Math.ceil(height)} pixels large, and ` +
    `pictures have at most ${longestSide} along a side and ${largestArea} in all`);
}

/** The same for an SVG, whose axes and legends stand beside the plot. */
export function checkSvg(svg) {
  const [, width, height] = /<svg[^>]* width="([^"]*)" height="([^"]*)"/.exec(svg);
  checkSize(Number(width), Number(height));
}
