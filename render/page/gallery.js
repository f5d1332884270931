// The script of the gallery page: shows what the list beside it names.

(() => {
  const all = JSON.parse(document.getElementById('words').textContent);
  const known = navigator.languages.map((language) => language.toLowerCase())
    .flatMap((language) => [language, language.split('-')[0]])
    .find((language) => Object.hasOwn(all, language));
  const language = known ?? 'en';
  const word = (key, ...parameters) =>
    (all[language][key] ?? key).replace(/\^(\d)/g, (sign, number) => parameters[number - 1] ?? sign);

  const charts = [];
  const sources = new Map();
  const errors = [];
  window.chartxmlGallery = {
    chart: (folder, chart) => charts.push({folder, ...chart}),
    source: (name, text) => sources.set(name, text),
    error: (text) => errors.push(text),
  };

  function make(kind, properties, ...children) {
    const element = Object.assign(document.createElement(kind), properties);
    element.append(...children);
    return element;
  }

  const urlOf = (folder, file) => `${encodeURIComponent(folder)}/${encodeURIComponent(file)}`;

  function sourceOf({source}) {
    if (!source) return [];
    const title = word('Source^1', source);
    if (!sources.has(source)) return [make('p', {}, make('a', {href: urlOf('procedures', source)}, title))];
    const text = make('pre', {tabIndex: 0}, sources.get(source));
    return [make('details', {}, make('summary', {}, title), text)];
  }

  function cardOf(chart) {
    const {folder, name, description = '', picture, trouble} = chart;
    const page = urlOf(folder, 'chart.html');
    const card = make('li', {lang: Object.hasOwn(all, chart.language) ? chart.language : language});
    if (picture) {
      const image = make('img', {alt: '', loading: 'lazy', src: urlOf(folder, picture)});
      card.append(make('a', {href: page, tabIndex: -1, ariaHidden: 'true'}, image));
    }
    card.append(make('h2', {}, make('a', {href: page}, name)));
    if (description) card.append(make('p', {}, description));
    card.append(make('p', {className: 'soft'}, folder));
    if (trouble) card.append(make('p', {className: 'bad'}, trouble));
    card.append(...sourceOf(chart));
    const text = `${name}\n${description}\n${folder}`.toLowerCase();
    return {card, text};
  }

  function search(cards) {
    const input = document.getElementById('search');
    const show = () => {
      const asked = input.value.toLowerCase().split(/\s+/);
      let found = 0;
      for (const {card, text} of cards) {
        card.hidden = !asked.every((part) => text.includes(part));
        found += card.hidden ? 0 : 1;
      }
      document.getElementById('found').textContent = word('Found^2', found, cards.length);
    };
    input.addEventListener('input', show);
    show();
  }

  document.addEventListener('DOMContentLoaded', () => {
    document.documentElement.lang = language;
    document.title = word('Charts');
    document.querySelector('h1').textContent = word('Charts');
    document.querySelector('label').textContent = word('Search');
    charts.sort((a, b) => (a.folder < b.folder ? -1 : 1));
    const cards = charts.map(cardOf);
    const list = document.getElementById('charts');
    list.append(...cards.map(({card}) => card));
    if (cards.length === 0) list.replaceWith(make('p', {}, word('No charts')));
    search(cards);
    if (errors.length === 0) return;
    document.getElementById('errors').append(
      make('h2', {}, word('Errors')), make('ul', {}, ...errors.map((error) => make('li', {}, error))));
  });
})();
