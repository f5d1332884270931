import {parse, View} from 'vega';
import {expressions} from './expressions.js';

/** A text in Vega's expressions, in ASCII: other line ends than "\n" would end them. */
export const literal = (text) =>
  JSON.stringify(text).replace(/[\u0080-\uffff]/g, (c) =>
    `\\u${c.charCodeAt(0).toString(16).padStart(4, '0')}`);

/**
 * The texts of the columns of rows, as tooltips and axes show them: the label of a
 * category, else what Vega computes by the column's display format.
 */
export async function textsOf(rows, columns, config) {
  const transform = columns.map(({field, text}, i) => ({
    type: 'formula',
    as: `text${i}`,
    expr: `isValid(datum[${literal(field)}]) ? ${text ?? '""'} : ""`,
  }));
  const values = rows.map((datum) => ({...datum}));
  const runtime = parse({config, data: [{name: 'texts', values, transform}]}, null, {ast: true});
  const view = new View(runtime, {renderer: 'none', expr: expressions});
  await view.runAsync();
  return view.data('texts').map((datum) =>
    columns.map(({field, labels, text}, i) => {
      const value = datum[field] ?? '';
      if (labels && Object.hasOwn(labels, value)) return labels[value];
      return text ? datum[`text${i}`] : value;
    }),
  );
}
