import {textsOf} from './texts.js';

/**
 * A cell as spreadsheets take it for what it is: a text that begins like a formula gets
 * an apostrophe before it.
 */
function cell(value) {
  if (typeof value === 'number') return String(value);
  const isFormula = /^[=+\-@\t\r]/.test(value) && !Number.isFinite(Number(value));
  const text = isFormula ? `'${value}` : value;
  return /[",\r\n]/.test(text) ? `"${text.replaceAll('"', '""')}"` : text;
}

/** A data source as CSV: numbers in full, categories and dates as the chart shows them. */
export async function csvOf({columns, rows}, config) {
  const texts = await textsOf(rows, columns, config);
  const lines = rows.map((row, r) =>
    columns.map(({field, date}, c) => {
      const isNumber = typeof row[field] === 'number' && !date;
      return cell(isNumber ? row[field] : String(texts[r][c]));
    }));
  const all = [columns.map(({title}) => cell(title)), ...lines];
  // The mark at the start tells spreadsheets that this is UTF-8.
  return `\ufeff${all.map((line) => `${line.join(',')}\r\n`).join('')}`;
}
