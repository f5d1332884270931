// The expressions of a Vega chart as the page evaluates them: by Vega's interpreter, since
// the page's policy allows no code from texts. The interpreter goes through the tree anew
// for each row and mark. They are many, so the kinds of nodes that most of their expressions
// consist of are functions here, made once; and a tooltip is made when somebody asks for it.

import {expressionInterpreter} from 'vega-interpreter';

/** What these say and the interpreter computes from them belongs together. */
const spans = ['x2', 'xc', 'y2', 'yc'];
const namesItem = (ast) => JSON.stringify(ast).includes('"name":"item"');

const operators = {
  '+': (a, b) => a + b, '-': (a, b) => a - b, '*': (a, b) => a * b, '/': (a, b) => a / b,
  '<': (a, b) => a < b, '<=': (a, b) => a <= b, '>': (a, b) => a > b, '>=': (a, b) => a >= b,
};

/** Functions of a row and the signals, by the kind of node; none of what the interpreter does. */
const kinds = {
  Literal: ({value, regex}) => !regex && (() => value),
  Identifier: ({name}) => {
    if (name === 'datum') return (datum) => datum;
    const signal = `$${name}`;
    return /^[a-z]/.test(name) && ((datum, signals) => signals[signal]);
  },
  MemberExpression: ({object, property}) =>
    object.name === 'datum' && property.type === 'Literal' && ((datum) => datum[property.value]),
  CallExpression: ({callee, arguments: list}, make, functions) => {
    const name = callee.name.replace(/^_/, '');
    if (typeof functions[name] !== 'function') return null;
    const [first, second] = list.map(make);
    if (list.length === 1) return (datum, signals) => functions[name](first(datum, signals));
    return list.length === 2 &&
      ((datum, signals) => functions[name](first(datum, signals), second(datum, signals)));
  },
  BinaryExpression: ({operator, left, right}, make) => {
    const operate = operators[operator];
    const [first, second] = [left, right].map(make);
    return operate && ((datum, signals) => operate(first(datum, signals), second(datum, signals)));
  },
  LogicalExpression: ({operator, left, right}, make) => {
    const [first, second] = [left, right].map(make);
    return operator === '&&'
      ? (datum, signals) => first(datum, signals) && second(datum, signals)
      : (datum, signals) => first(datum, signals) || second(datum, signals);
  },
  ConditionalExpression: ({test, consequent, alternate}, make) => {
    const [isSo, then, otherwise] = [test, consequent, alternate].map(make);
    return (datum, signals) => (isSo(datum, signals) ? then : otherwise)(datum, signals);
  },
};

function parameter(context, {ast}) {
  const make = (node) =>
    kinds[node.type]?.(node, make, context.functions) || expressionInterpreter.parameter(context, {ast: node});
  return make(ast);
}

function encode(context, {marktype, channels: {tooltip, ...channels}}) {
  const own = [], others = {};
  const isSpan = spans.some((name) => name in channels);
  for (const [name, channel] of Object.entries(channels))
    if (isSpan || namesItem(channel.ast)) others[name] = channel;
    else own.push([name, parameter(context, channel)]);
  const encodeOthers = expressionInterpreter.encode(context, {marktype, channels: others});
  const tell = tooltip && parameter(context, tooltip);
  return (item, signals) => {
    let isChanged = 0;
    for (const [name, evaluate] of own) {
      const value = evaluate(item.datum, signals);
      if (item[name] === value) continue;
      item[name] = value;
      isChanged = 1;
    }
    if (tell) item.tooltip ??= () => tell(item.datum, signals);
    return encodeOthers(item, signals) || isChanged;
  };
}

/** For Vega's View. The tooltip of a mark is a function that makes it. */
export const expressions = {...expressionInterpreter, parameter, encode};
