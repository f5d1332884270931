// An SVG as a PDF of one page, its texts as texts in embedded faces. The same SVG gives the
// same bytes: no date, and an id of the document that is made from none.

import {execFileSync} from 'node:child_process';
import {readFileSync} from 'node:fs';
import PDFDocument from 'pdfkit';
import SVGtoPDF from 'svg-to-pdfkit';
import {nameFaces, rightToLeft} from './faces.mjs';

const pointsOfPixel = 0.75;

const bytesOf = new Map();
const found = new Map();

/** The file of a face and, where the file holds several, its name there. */
function findFace(family, isBold) {
  const pattern = `${family}:${isBold ? 'bold' : 'regular'}`;
  if (!found.has(pattern)) {
    const answer = execFileSync('fc-match', ['-f', '%{file}\n%{postscriptname}', pattern], {encoding: 'utf8'});
    const [file, name] = answer.split('\n');
    if (!bytesOf.has(file)) bytesOf.set(file, readFileSync(file));
    found.set(pattern, {name, file});
  }
  return found.get(pattern);
}

/** fontconfig finds the faces, as it does for other programs. */
function faceOf(family, isBold) {
  try {
    return findFace(family, isBold);
  } catch (error) {
    throw new Error(`fontconfig's fc-match finds no face for ${family}: ${error.message}`);
  }
}

const firstOf = (families) => families.split(',')[0].replaceAll(/['"]/g, '').trim();

/** Registers the faces that are asked for, once each. */
function fontsOf(document) {
  const known = new Set();
  return (families, isBold) => {
    const {name, file} = faceOf(firstOf(families), isBold);
    if (!known.has(name)) {
      document.registerFont(name, bytesOf.get(file), file.endsWith('.ttc') ? name : undefined);
      known.add(name);
    }
    return name;
  };
}

function sizeOf(svg) {
  const attribute = (name) => Number(new RegExp(`<svg[^>]* ${name}="([\\d.]+)"`).exec(svg)[1]);
  return [attribute('width') * pointsOfPixel, attribute('height') * pointsOfPixel];
}

/** The bytes of the PDF. Throws for what cannot be set soundly. */
export async function pdfOf(svg, {title, description}) {
  if (rightToLeft.test(svg.replace(/<title>.*?<\/desc>/s, '')))
    throw new Error('texts written from right to left cannot be put into a PDF');
  const [width, height] = sizeOf(svg);
  const info = {Title: title, Subject: description, CreationDate: new Date(0)};
  const document = new PDFDocument({
    size: [width, height], margin: 0, font: null, info, displayTitle: true,
  });
  delete document.info.CreationDate;
  document.endMetadata = () => {}; // would want the date, for what this version of PDF has not
  const parts = [];
  document.on('data', (part) => parts.push(part));
  const whole = new Promise((resolve, reject) => document.on('end', resolve).on('error', reject));
  SVGtoPDF(document, nameFaces(svg), 0, 0, {
    width, height, fontCallback: fontsOf(document),
    warningCallback: (warning) => { throw new Error(warning); },
  });
  document.end();
  await whole;
  return Buffer.concat(parts);
}
