// Prints how wide texts are: as pictures are laid out, and as they are drawn.
//
// usage: node letters.mjs <font size> <font weight> <font families> <text> …
import {Resvg} from '@resvg/resvg-js';
import {nameFaces} from '../../../render/node/faces.mjs';
import {textWidth} from '../../../render/node/textWidth.mjs';

const [size, weight, families, ...texts] = process.argv.slice(2);

const inkWidth = (text) => {
  const svg = `<svg xmlns="http://www.w3.org/2000/svg" width="4000" height="200"><text \
font-family="${families}" font-size="${size}px" font-weight="${weight}" transform="translate(100,100)">${text}</text></svg>`;
  return new Resvg(nameFaces(svg), {font: {loadSystemFonts: true}}).innerBBox().width;
};

// Between two bars all of a text counts, not its ink alone.
const drawn = (text) => inkWidth(`|${text.replaceAll('&', '&amp;')}|`) - inkWidth('||');

console.log(JSON.stringify(texts.map((text) => [textWidth(text, Number(size), weight), drawn(text)])));
