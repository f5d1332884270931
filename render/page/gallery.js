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

  const langOf = (code) => (Object.hasOwn(all, code) ? code : language);

  function cardOf(chart) {
    const {folder, name, title, subtitle, description = '', kinds, source, picture, trouble} = chart;
    const page = urlOf(folder, 'chart.html');
    const card = make('li', {lang: langOf(chart.language)});
    if (picture) {
      const image = make('img', {alt: '', loading: 'lazy', src: urlOf(folder, picture)});
      card.append(make('a', {href: page, tabIndex: -1, ariaHidden: 'true'}, image));
    }
    card.append(make('h2', {}, make('a', {href: page}, title ?? name)));
    if (subtitle) card.append(make('p', {}, subtitle));
    if (description) card.append(make('p', {}, description));
    card.append(make('p', {className: 'soft'}, folder));
    if (trouble) card.append(make('p', {className: 'bad'}, trouble));
    card.append(...sourceOf(chart));
    const text = [name, title, subtitle, description, kinds, source, folder].join('\n').toLowerCase();
    return {card, text, language: chart.language};
  }

  /** The language of a chart as it calls itself, such as "Deutsch". */
  function nameOf(code) {
    try {
      return new Intl.DisplayNames(code, {type: 'language'}).of(code) ?? code;
    } catch {
      return code;
    }
  }

  /** A choice among the languages that the charts have, when there is one. */
  function languageChoice(cards) {
    const select = document.getElementById('language');
    const languages = [...new Set(cards.map((card) => card.language).filter(Boolean))].sort();
    select.append(make('option', {value: ''}, word('All')),
      ...languages.map((code) => make('option', {value: code, lang: langOf(code)}, nameOf(code))));
    select.hidden = select.labels[0].hidden = languages.length < 2;
    return select;
  }

  function search(cards) {
    const input = document.getElementById('search');
    const choice = languageChoice(cards);
    const show = () => {
      const asked = input.value.toLowerCase().split(/\s+/);
      let found = 0;
      for (const {card, text, language: own} of cards) {
        const isOfLanguage = choice.value === '' || choice.value === own;
        card.hidden = !isOfLanguage || !asked.every((part) => text.includes(part));
        found += card.hidden ? 0 : 1;
      }
      document.getElementById('found').textContent = word('Found^2', found, cards.length);
    };
    input.addEventListener('input', show);
    choice.addEventListener('change', show);
    show();
  }

  document.addEventListener('DOMContentLoaded', () => {
    document.documentElement.lang = language;
    document.title = word('Charts');
    document.querySelector('h1').textContent = word('Charts');
    document.querySelector('label[for=search]').textContent = word('Search');
    document.querySelector('label[for=language]').textContent = word('Language');
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
