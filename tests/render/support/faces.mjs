// Prints for each text how many font files are read for it, and whether all fonts of
// pictures give the same bitmap. A text without letters stands before each.
//
// usage: node faces.mjs <font families> <text> …
import {Resvg} from '@resvg/resvg-js';
import {nameFaces} from '../../../render/node/faces.mjs';
import {fontFiles, fontsOf} from '../../../render/node/fonts.mjs';

const [families, ...texts] = process.argv.slice(2);

const results = texts.map((text) => {
  const svg = nameFaces(`<svg xmlns="http://www.w3.org/2000/svg" width="900" height="60">\
<g><text font-family="${families}"/></g><text \
font-family="${families}" font-size="30px" transform="translate(20,40)">${text}</text></svg>`);
  const drawn = (font) => new Resvg(svg, {font}).render().pixels;
  const font = fontsOf(svg);
  const all = {...font, fontFiles: fontFiles()};
  return [font.fontFiles.length, drawn(font).equals(drawn(all))];
});
console.log(JSON.stringify(results));
