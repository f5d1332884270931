// Texts: breaking lines, and what is said above every list of the entry points.

export const paragraphs = text =>
  text.trim().split('\n\n').map(part => part.replaceAll('\n', ' '));

/** Breaks a text into lines of at most `width` characters. */
export function wrap(text, width) {
  const lines = [''];
  for (const word of text.split(' ')) {
    const line = lines.at(-1);
    if (line && line.length + 1 + word.length > width) lines.push(word);
    else lines[lines.length - 1] = line ? `${line} ${word}` : word;
  }
  return lines;
}

/** A line that goes on over further lines, which are indented by `hang`: `open`, the items with
 *  commas between them, `close`, and words that may each stand on a line of their own. */
export function wrapList(open, items, close, options = {}) {
  const { width = 100, hang = 4, breakMark = '', tail = [] } = options;
  const listed = items.map((item, index) => item + (index + 1 < items.length ? ',' : close));
  const lines = [items.length ? open : open + close];
  for (const [index, word] of [...listed, ...tail].entries()) {
    const gap = index === 0 && items.length ? '' : ' ';
    if (`${lines.at(-1)}${gap}${word}${breakMark}`.length <= width) {
      lines[lines.length - 1] += gap + word;
    } else {
      lines[lines.length - 1] += breakMark;
      lines.push(' '.repeat(hang) + word);
    }
  }
  return lines;
}

export const snakeCase = name =>
  name.replace(/(?<=[a-z0-9])[A-Z]|(?<=[A-Z])[A-Z](?=[a-z])/g, '_$&').toLowerCase();

export const sentences = entry =>
  [entry.does, `Returns ${entry.returns}.`, entry.reports && `Reports ${entry.reports}.`]
    .filter(Boolean).join(' ');

export const conventions = paragraphs(`
Calling convention. Every argument is passed by its address, all but the procedure handle, which
is an address itself. Integers have 64 bits: the library reads the low 32 as a signed number, but
entry points of several steps compare all 64, so store every integer sign-extended; results and
outputs come back sign-extended. A logical is an integer: 0 is false, any other value true. Reals
have 64 bits.

A text is the address of its first byte, then the address of its length: exactly that many bytes
in the process code page (UTF-8 unless the host says otherwise), without terminator, trailing
blanks kept. Bytes that are not valid become U+FFFD; a negative length is an empty text. Arguments
named "ignored" are never read.

Handles. Charts count from 0; nodes count from 0 within their chart, and node 0 is its document
element; texts have string handles, 1 to 156 of which are predefined. Handles are numbers and need
no release. Variables go by the number that the procedure has for them, from 1.

Ownership. The library copies texts and cells during the call and keeps no address of them. The
dictionary stays the procedure's; keep its data set open until the charts are ended.

The value -1 means "absent" where an integer is optional, and failure where it is returned. A check
that fails changes nothing, but for strings made on the way; an entry point of several steps ends
at the first that fails, keeps the nodes of the others, and leaves the outputs of later steps
alone. Ending a chart consumes it also when it cannot be sent.

Errors. Nothing is thrown or raised. What is refused is reported in one line, with the reason, to
the host's error log: a bad chart, node or string handle by every entry point, the rest as told
with each. "Silently" means without a report. Call from one thread.`);
