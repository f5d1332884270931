// The entry points as Fortran would have them: texts without lengths, any kind of integer and
// real, optional arguments, stat= and errmsg=.
import { madeFrom, requireOnce } from './list.mjs';
import { rawModule, rawName } from './raw-fortran.mjs';
import { snakeCase, wrap, wrapList } from './text.mjs';

const broken = { hang: 6, breakMark: ' &' };

/** One module a group. */
export function fortran(group) {
  const wrappers = group.entries.filter(isWrapped).map(entry => wrapper(entry));
  const dummies = wrappers.flatMap(one => one.dummies);
  const pointers = dummies.some(({ attributes }) => attributes === pointer);
  const reals = dummies.some(({ attributes }) => attributes.includes('c_double'));
  const kinds = ['c_int64_t', reals && 'c_double', pointers && 'c_ptr'].filter(Boolean).sort();
  return [
    ...wrap(madeFrom, 98).map(line => `! ${line}`), '!', `! ${group.title}, as Fortran has it.`,
    `module chartxml_${group.id}`,
    `  use, intrinsic :: iso_c_binding, only: ${kinds.join(', ')}`,
    '  use chartxml_entry_call, only: entry_call',
    `  use ${rawModule(group)}`,
    '  implicit none',
    '  private',
    ...wrapList('  public :: ', wrappers.map(({ name }) => name), '', { breakMark: ' &' }), '',
    'contains',
    ...wrappers.flatMap(procedure => ['', ...body(procedure)]), '',
    'end module',
  ];
}

fortran.has = group => group.entries.some(isWrapped);

/** The one module that a program uses. */
export function umbrella({ groups }) {
  const wrapped = groups.filter(fortran.has);
  requireOnce(wrapped.flatMap(g => g.entries).filter(isWrapped).map(fortranName));
  return [
    ...wrap(madeFrom, 98).map(line => `! ${line}`), '!',
    '! All that a procedure needs: each entry point as the library has it (cx_...), the same as',
    '! Fortran would have it, names for predefined strings and roles, columns and texts.',
    'module chartxml',
    ...groups.map(group => `  use ${rawModule(group)}`),
    ...wrapped.map(group => `  use chartxml_${group.id}`),
    '  use chartxml_columns',
    '  use chartxml_entry_call, only: stop_when_refused',
    '  use chartxml_strings',
    '  use chartxml_words',
    '  implicit none', 'end module',
  ];
}

/** The lines that show how a wrapper is called, none for an entry point without one. */
export function call(entry) {
  if (!isWrapped(entry)) return [];
  const { name, dummies, isFunction } = wrapper(entry);
  const required = dummies.filter(dummy => !dummy.optional).map(dummy => dummy.name);
  const optional = dummies.filter(dummy => dummy.optional).map(dummy => dummy.name);
  const between = required.length ? ' [, ' : '[';
  const shown = `${required.join(', ')}${between}${optional.join(', ')}]`;
  return ['', ...wrap(`${isFunction ? 'answer = ' : 'call '}${name}(${shown})`, 100)
    .map((line, index) => (index ? '    ' : '') + line)];
}

const isWrapped = entry => entry.fortran !== false;
const fortranName = entry => entry.fortran ?? snakeCase(entry.operation);

// What a wrapper is made of

const scalar = 'class(*), intent(in)';
const output = 'class(*), intent(inout)';
const pointer = 'type(c_ptr), intent(in)';

// How each kind is declared; where its arguments are kept until the call and what takes them
// there, or else what is handed on as it is.
const dummyKinds = {
  integer: { attributes: scalar, store: 'i', take: 'take' },
  string: { attributes: scalar, store: 'i', take: 'take_string' },
  logical: { attributes: scalar, store: 'i', take: 'take_logical' },
  real: { attributes: scalar, store: 'r', take: 'take_real' },
  out: { attributes: output, store: 'o', take: 'take_output' },
  ints: { attributes: scalar, shape: '(:)', store: 'list', take: 'take_list' },
  text: { attributes: 'character(*), intent(in)', pass: name => [name, `len(${name}, c_int64_t)`] },
  obs: { attributes: 'real(c_double), intent(in)', shape: '(:)', pass: name => [name] },
  handle: { attributes: pointer, pass: name => [`this%address(${name})`] },
  dictionary: { attributes: pointer, pass: name => [`this%address(${name})`] },
};

function wrapper(entry) {
  const outs = entry.arguments.filter(({ kind }) => kind === 'out').map(({ name }) => name);
  const isFunction = /string handle|cell handle|packed/.test(entry.returns)
    || /^get/i.test(entry.operation ?? '');
  const made = madeBy(entry, outs, isFunction);
  const counts = {};
  const steps = entry.arguments.map(argument => step(argument, entry, counts));
  const own = [
    ...steps.filter(({ dummy }) => dummy).map(({ dummy }) => dummy),
    ...(made ? [{ name: made, attributes: output, optional: made !== 'chart' }] : []),
  ];
  return {
    entry,
    name: fortranName(entry),
    isFunction,
    isAnyResultFine: /in every case|also for a bad chart|also when made/.test(entry.returns),
    made,
    steps,
    dummies: [
      ...own.sort((one, other) => rank(one) - rank(other)),
      { name: 'stat', attributes: output, optional: true },
      { name: 'errmsg', attributes: 'character(*), intent(inout)', optional: true },
    ],
  };
}

// What has to be given stands first, the procedure's handle, which few give, last.
const rank = ({ name, optional }) => (name === 'procedure_handle' ? 2 : optional ? 1 : 0);

const nothingMade = /^-?[01]|^the (parent|list|number of rows|chart argument|variable|position)\b/;

/** The name of the output that takes what an entry point made, when there is something. */
function madeBy({ name, returns }, outs, isFunction) {
  if (isFunction || !/_(add|begin|copy|create)/.test(name)) return '';
  if (nothingMade.test(returns)) return '';
  if (outs.some(out => new RegExp(`^the (new )?${out}\\b`).test(returns))) return '';
  return returns.startsWith('the chart') ? 'chart' : 'handle';
}

/** How one argument of an entry point is filled. */
function step(argument, entry, counts) {
  const { kind, name, meaning } = argument;
  if (kind === 'ignored' || /^not read/.test(meaning)) return { passed: ['0_c_int64_t'] };
  if (kind === 'count') return { passed: ['size(this%list, kind=c_int64_t)'] };
  const dummyKind = kind === 'int' ? (/^string handle/.test(meaning) ? 'string' : 'integer') : kind;
  const { attributes, shape, store, take, pass } = dummyKinds[dummyKind];
  const dummy = {
    name: snakeCase(name), shape, attributes, optional: isOptional(argument, entry),
  };
  if (pass) return { dummy, passed: pass(dummy.name) };
  const taken = `'${dummy.name}', ${dummy.name}`;
  if (store === 'list') return { dummy, take: `${take}(${taken})`, passed: ['this%list'] };
  counts[store] = (counts[store] ?? 0) + 1;
  const place = counts[store];
  return {
    dummy,
    take: `${take}(${place}, ${taken})`,
    give: kind === 'out' && `call this%give(${place}, ${dummy.name})`,
    passed: [`this%${store}(${place})`],
  };
}

function isOptional({ kind, name, meaning, canBeAbsent }, entry) {
  if (kind === 'int') return canBeAbsent || /\b(or|also) -1\b/.test(meaning);
  if (kind === 'logical') return entry.arguments.length !== 3;
  if (kind === 'out') return name !== 'chart';
  return ['handle', 'dictionary'].includes(kind);
}

// Writing it

function body({ entry, name, isFunction, isAnyResultFine, made, steps, dummies }) {
  const takes = steps.filter(({ take }) => take).map(({ take }) => `    call this%${take}`);
  const gives = steps.filter(({ give }) => give).map(({ give }) => `    ${give}`);
  const kind = isFunction ? 'function' : 'subroutine';
  const result = isFunction ? [{ name: 'answer', attributes: 'integer' }] : [];
  const how = [isFunction && 'answers=.true.', isAnyResultFine && 'any_result=.true.'];
  const passed = steps.flatMap(one => one.passed);
  return [
    ...wrap(told(entry, made), 95).map(line => `  !> ${line}`),
    ...wrapList(`  ${kind} ${name}(`, dummies.map(dummy => dummy.name), ')',
      { ...broken, tail: isFunction ? ['result(answer)'] : [] }),
    ...declarationsOf([...dummies, ...result]),
    '    type(entry_call) :: this', '',
    `    call this%start(${[`'${name}'`, 'stat', ...how.filter(Boolean)].join(', ')})`,
    ...takes,
    ...(made ? [`    call this%take_output(0, '${made}', ${made})`] : []),
    ...wrapList(`    if (this%sound) this%result = ${rawName(entry)}(`, passed, ')', broken),
    ...gives,
    `    call this%finish(${[made && `made=${made}`, 'stat=stat', 'errmsg=errmsg']
      .filter(Boolean).join(', ')})`,
    ...(isFunction ? ['    answer = int(this%result)'] : []),
    `  end ${kind}`,
  ];
}

const told = (entry, made) =>
  [entry.does, made && `${made}: ${entry.returns}.`, entry.reports && `Refuses ${entry.reports}.`]
    .filter(Boolean).join(' ');

/** One declaration for each kind of dummy. */
function declarationsOf(dummies) {
  const byAttributes = new Map();
  for (const { name, attributes, optional, shape = '' } of dummies) {
    const key = optional ? `${attributes}, optional` : attributes;
    byAttributes.set(key, [...(byAttributes.get(key) ?? []), name + shape]);
  }
  return [...byAttributes].flatMap(([attributes, names]) =>
    wrapList(`    ${attributes} :: `, names, '', broken));
}
