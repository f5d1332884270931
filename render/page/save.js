import {View} from 'vega';
import {csvOf} from './csv.js';
import {expressions} from './expressions.js';
import {fontsOfPage} from './fonts.js';
import {magnificationOf, pngWithTexts, textsOfPicture, wholeSvg, withLetters} from './pictureTexts.js';
import {word} from './words.js';

const pngScale = 2;

/** What a saved picture is made from: what is seen, but light or dark as its theme begins. */
function asTheme({runtime, view, filters, zoom}) {
  const picture = new View(runtime, {renderer: 'none', expr: expressions});
  const names = filters.map(({signal}) => signal)
    .concat(zoom.flatMap(({name}) => [`zoom_${name}`, `ticks_${name}`, `decimals_${name}`]))
    .concat(zoom.length > 0 ? 'zoomed' : []);
  for (const name of names) picture.signal(name, view.signal(name));
  return picture;
}

const svg = async (page) =>
  withLetters(wholeSvg(await asTheme(page).toSVG(magnificationOf(page.spec)), page.spec), fontsOfPage());

/** From the SVG, since Vega's own drawing of pixels knows no patterns. */
async function png(page) {
  const image = new Image();
  image.src = `data:image/svg+xml,${encodeURIComponent(await svg(page))}`;
  await image.decode();
  const canvas = document.createElement('canvas');
  canvas.width = image.width * pngScale;
  canvas.height = image.height * pngScale;
  canvas.getContext('2d').drawImage(image, 0, 0, canvas.width, canvas.height);
  const url = canvas.toDataURL('image/png');
  const bytes = Uint8Array.from(atob(url.slice(url.indexOf(',') + 1)), (c) => c.charCodeAt(0));
  return pngWithTexts(bytes, textsOfPicture(page.spec));
}

async function sha256(text) {
  const digest = await crypto.subtle.digest('SHA-256', new TextEncoder().encode(text));
  return btoa(String.fromCharCode(...new Uint8Array(digest)));
}

/**
 * The page in one file, its script inside: the bundle is the body of this function. The
 * page's policy then names the script by its checksum.
 */
async function wholePage({pristine}) {
  const script = `${chartxmlPage}\nchartxmlPage();`;
  const page = pristine.cloneNode(true);
  const policy = page.querySelector('meta[http-equiv]');
  policy.content = policy.content.replace(/script-src [^;]*/, `script-src 'sha256-${await sha256(script)}'`);
  for (const needless of ['nav', '#still']) page.querySelector(needless)?.remove();
  const inline = document.createElement('script');
  inline.textContent = script;
  page.querySelector('#runtime').replaceWith(inline);
  inline.id = 'runtime';
  return `<!doctype html>\n${page.outerHTML}`;
}

const pictures = [
  {key: 'Save as^1', name: 'SVG', file: 'chart.svg', type: 'image/svg+xml', make: svg},
  {key: 'Save as^1', name: 'PNG', file: 'chart.png', type: 'image/png', make: png},
];
const itself = {key: 'Save the page', name: '', file: 'chart.html', type: 'text/html', make: wholePage};

/** One for the data of each source. */
const csvFormats = ({spec, sources}) =>
  sources.map((source) => {
    const isOnly = sources.length === 1;
    return {
      key: 'Save as^1', name: isOnly ? 'CSV' : `CSV (${source.name})`,
      file: isOnly ? 'chart.csv' : `${source.name}.csv`, type: 'text/csv',
      make: () => csvOf(source, spec.config),
    };
  });

export function addSaveButtons(page) {
  for (const {key, name, file, type, make} of [...pictures, ...csvFormats(page), itself]) {
    const button = document.createElement('button');
    button.textContent = word(key, name);
    button.addEventListener('click', async () => {
      const link = document.createElement('a');
      link.href = URL.createObjectURL(new Blob([await make(page)], {type}));
      link.download = file;
      link.click();
      setTimeout(() => URL.revokeObjectURL(link.href), 60000);
    });
    page.actions.append(button);
  }
}
