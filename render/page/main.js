// The script of every chart page: draws the Vega chart that the page holds.

import {parse} from 'vega';
import {drawChart} from './chart.js';
import {addFilters, prepareFilters} from './filter.js';
import {loadFonts} from './fonts.js';
import {prepareLabels} from './labels.js';
import {addSaveButtons} from './save.js';
import {sourcesOf} from './sources.js';
import {addTables} from './table.js';
import {addWalk, prepareWalk} from './walk.js';
import {word} from './words.js';
import {addZoom, prepareZoom} from './zoom.js';

const element = (id) => document.getElementById(id);
// The picture for pages without this script: a copy of the page would load it.
element('still')?.remove();
const pristine = document.documentElement.cloneNode(true);

async function drawPage() {
  const spec = JSON.parse(element('spec').textContent);
  const sources = sourcesOf(spec);
  const filters = prepareFilters(spec);
  const zoom = prepareZoom(spec);
  prepareLabels(spec);
  const walks = prepareWalk(spec);
  await loadFonts();
  // Expressions are kept as trees: the page's policy allows no code from texts.
  const runtime = parse(spec, null, {ast: true});
  const view = await drawChart(runtime, element('chart'), spec);

  const page = {spec, sources, runtime, view, pristine, filters, zoom, walks, actions: element('actions')};
  const walk = addWalk(page, element('chart'), element('live'));
  page.changed = () => walk.renew();
  await addFilters(page, element('filters'));
  addZoom(page, element('chart'));
  addSaveButtons(page);
  addTables(page, element('data'));
}

const trouble = element('trouble');
drawPage().then(
  () => trouble.remove(),
  (error) => {
    trouble.textContent = word('Not drawn^1', error.message);
    trouble.classList.remove('later');
  },
);
