// The fonts that pictures are drawn with, which a picture's texts are measured by and
// checked against: no others, so that a picture is the same wherever they are.

import {existsSync} from 'node:fs';
import {join} from 'node:path';
import table from '../font/files.json' with {type: 'json'};
import {familyOf} from './textWidth.mjs';

/** Their files by weight. */
const fonts = table.fonts.map(({folder, regular, bold, ...font}) => {
  const all = process.env.CHARTXML_FONTS || join(table.folder, folder);
  return {...font, regular: join(all, regular), bold: join(all, bold)};
});

const filesOf = (families) => families.flatMap(({regular, bold}) => [regular, bold]);

export const fontFiles = () => filesOf(fonts);

/** The families that are not installed. */
export const missingFamilies = fonts
  .filter(({regular, bold}) => !existsSync(regular) || !existsSync(bold))
  .map(({family}) => family);

const isInSmallFonts = (character) => character === '\n' || familyOf(character) !== undefined;

/**
 * What the renderer of bitmaps loads for an SVG. To read large fonts takes longer than to
 * draw a chart: only characters that the others do not have ask for them. Where a family
 * is missing it looks through all that the system has, which may have its characters.
 */
export function fontsOf(svg) {
  const characters = [...new Set(svg.replaceAll(/<[^>]*>/g, ''))];
  const needed = characters.every(isInSmallFonts) ? fonts.filter(({isLarge}) => !isLarge) : fonts;
  return {
    loadSystemFonts: missingFamilies.length > 0,
    fontFiles: filesOf(needed).filter((file) => existsSync(file)),
    defaultFontFamily: 'DejaVu Sans',
    sansSerifFamily: 'DejaVu Sans',
  };
}
