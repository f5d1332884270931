const words = JSON.parse(document.getElementById('words').textContent);

/** The page's text of a key in its language, "^1" and so on replaced by the parameters. */
export const word = (key, ...parameters) =>
  (words[key] ?? key).replace(/\^(\d)/g, (sign, number) => parameters[number - 1] ?? sign);

/** A number as the page's language groups it. */
export const shownNumber = (number) => number.toLocaleString(document.documentElement.lang);
