import {literal} from './texts.js';

/** So many marks get a label each; more are no help, and the page would be slow. */
const mostLabels = 500;

/** A signal of the scope, so that it is asked once for all marks: whether they are few. */
function areFew(data, scope) {
  scope.signals ??= [];
  const name = `few_${scope.signals.length}`;
  scope.signals.push({name, update: `length(data(${literal(data)})) <= ${mostLabels}`});
  return name;
}

function label(mark, scope) {
  const tooltip = mark.encode?.update?.tooltip?.signal;
  if (tooltip) {
    const text = `join(${tooltip}, "; ")`;
    const signal = mark.from ? `${areFew(mark.from.data, scope)} ? ${text} : null` : text;
    mark.encode.update.description ??= {signal};
  }
  mark.marks?.forEach((inner) => label(inner, mark));
}

/** Gives marks their values as labels for screen readers, unless there are too many. */
export const prepareLabels = (spec) => spec.marks?.forEach((mark) => label(mark, spec));
