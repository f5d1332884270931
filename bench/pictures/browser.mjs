// How long a browser takes from opening a file to the frame that shows all of its picture.

import {setTimeout} from 'node:timers/promises';
import {pathToFileURL} from 'node:url';
import {chromium} from 'playwright-core';
import {median} from './measure.mjs';

const flags = ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking'];

/** Runs in the page before anything else: notes the frame after file and marks are there. */
function watch() {
  const look = () => {
    const isThere = document.readyState === 'complete' && document.querySelector('path, use');
    if (!isThere) return requestAnimationFrame(look);
    requestAnimationFrame(() => requestAnimationFrame(() => {
      globalThis.wholePicture = performance.now();
    }));
  };
  requestAnimationFrame(look);
}

async function seconds(browser, file) {
  const page = await browser.newPage({viewport: {width: 1200, height: 900}});
  await page.addInitScript(watch);
  await page.goto(pathToFileURL(file).href, {waitUntil: 'commit', timeout: 0});
  for (;;) {
    const whole = await page.evaluate('globalThis.wholePicture');
    if (whole !== undefined) return whole / 1000;
    await page.waitForTimeout(5);
  }
}

/** Infinity after the limit: a page that is busy with its picture answers nothing until then. */
async function timed(file, limit) {
  const browser = await chromium.launch({executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: flags});
  const waiting = new AbortController();
  try {
    return await Promise.race([seconds(browser, file), setTimeout(limit * 1000, Infinity, {signal: waiting.signal})]);
  } finally {
    waiting.abort();
    await browser.close();
  }
}

/**
 * Least and median seconds to the whole picture of each file, each in a browser of its own.
 * A file that takes longer than the limit is tried once.
 */
export async function wholePictures(files, {runs, limit}) {
  const results = files.map(() => []);
  for (let run = 0; run < runs; ++run)
    for (const [i, file] of files.entries()) {
      if (results[i].includes(Infinity)) continue;
      process.stderr.write(`browser, run ${run + 1} of ${runs}: ${file}\n`);
      results[i].push(await timed(file, limit));
    }
  return results.map((all) => ({least: Math.min(...all), wall: median(all)}));
}
