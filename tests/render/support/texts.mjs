// Prints the texts of a chart's data table, as its page shows them: an array of rows.
//
// usage: node texts.mjs <chart folder>
import {readFileSync} from 'node:fs';
import {join} from 'node:path';
import {textsOf} from '../../../render/page/texts.js';

const spec = JSON.parse(readFileSync(join(process.argv[2], 'chart.vg.json'), 'utf8'));
console.log(JSON.stringify(await textsOf(spec.data[0].values, spec.usermeta.columns, spec.config)));
