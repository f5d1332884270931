// The fonts that pictures are drawn with, which a picture's texts are measured by and
// checked against: no others, so that a picture is the same wherever they are.

import {existsSync} from 'node:fs';

const debian = '/usr/share/fonts';

/** Their files by weight, where Debian's packages put them. */
export const fonts = [
  {
    family: 'Liberation Sans',
    regular: `${debian}/truetype/liberation/LiberationSans-Regular.ttf`,
    bold: `${debian}/truetype/liberation/LiberationSans-Bold.ttf`,
  },
  {
    family: 'DejaVu Sans',
    regular: `${debian}/truetype/dejavu/DejaVuSans.ttf`,
    bold: `${debian}/truetype/dejavu/DejaVuSans-Bold.ttf`,
  },
  {
    family: 'Noto Sans CJK',
    regular: `${debian}/opentype/noto/NotoSansCJK-Regular.ttc`,
    bold: `${debian}/opentype/noto/NotoSansCJK-Bold.ttc`,
  },
];

export const fontFiles = () => fonts.flatMap(({regular, bold}) => [regular, bold]);

/** The families that are not installed. */
export const missingFamilies = () =>
  fonts
    .filter(({regular, bold}) => !existsSync(regular) || !existsSync(bold))
    .map(({family}) => family);

/**
 * What the renderer of bitmaps loads. Where a family is missing it looks through all that
 * the system has, which may have its characters.
 */
export const fontOptions = () => ({
  loadSystemFonts: missingFamilies().length > 0,
  fontFiles: fontFiles().filter((file) => existsSync(file)),
  defaultFontFamily: 'DejaVu Sans',
  sansSerifFamily: 'DejaVu Sans',
});
