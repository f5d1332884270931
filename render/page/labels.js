import {literal} from './texts.js';

/** So many marks get a label each; more are no help, and the page would be slow. */
const mostLabels = 500;

function label(mark) {
  const tooltip = mark.encode?.update?.tooltip?.signal;
  if (tooltip) {
    const text = `join(${tooltip}, "; ")`;
    const isOneMark = mark.type === 'line' || mark.type === 'area';
    const data = literal(mark.from?.data ?? '');
    mark.encode.update.description = {
      signal: isOneMark ? text : `length(data(${data})) <= ${mostLabels} ? ${text} : null`,
    };
  }
  mark.marks?.forEach(label);
}

/** Gives marks their values as labels for screen readers, unless there are too many. */
export const prepareLabels = (spec) => spec.marks?.forEach(label);
