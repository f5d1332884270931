// The script of every chart page: draws the Vega chart that the page holds.

import {parse} from 'vega';
import {drawChart} from './chart.js';
import {addSaveButtons} from './save.js';
import {fillTable} from './table.js';

async function drawPage() {
  const spec = JSON.parse(document.getElementById('spec').textContent);
  // Expressions are kept as trees: the page's policy allows no code from texts.
  const runtime = parse(spec, null, {ast: true});
  const view = await drawChart(runtime, document.getElementById('chart'));
  addSaveButtons(runtime, document.getElementById('actions'));
  await fillTable(view, spec, document.getElementById('data'));
}

const trouble = document.getElementById('trouble');
drawPage().then(
  () => trouble.remove(),
  (error) => {
    trouble.textContent = `The picture cannot be drawn: ${error.message}`;
    trouble.classList.remove('later');
  },
);
