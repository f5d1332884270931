// How long a browser takes from opening a file to the frame that shows its picture.

import {pathToFileURL} from 'node:url';
import {chromium} from 'playwright-core';
import {median} from './measure.mjs';

const patience = 60_000;
const flags = ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking'];

/** Runs in the page before anything else: notes the frame after the first marks are there. */
function watch() {
  const look = () => {
    if (!document.querySelector('svg path, svg use, path, use')) return requestAnimationFrame(look);
    requestAnimationFrame(() => requestAnimationFrame(() => {
      globalThis.firstPicture = performance.now();
    }));
  };
  requestAnimationFrame(look);
}

async function open(browser, file) {
  const page = await browser.newPage({viewport: {width: 1200, height: 900}});
  try {
    await page.addInitScript(watch);
    await page.goto(pathToFileURL(file).href, {timeout: patience});
    const end = Date.now() + patience;
    while (Date.now() < end) {
      const seconds = await page.evaluate('globalThis.firstPicture');
      if (seconds !== undefined) return seconds / 1000;
      await page.waitForTimeout(5);
    }
    return Infinity;
  } catch (error) {
    if (error.name !== 'TimeoutError') throw error;
    return Infinity;
  } finally {
    await page.close();
  }
}

/** Least and median seconds to the first picture of each file; each in a browser of its own. */
export async function firstPictures(files, runs) {
  const results = files.map(() => []);
  for (let run = 0; run < runs; ++run)
    for (const [i, file] of files.entries()) {
      process.stderr.write(`browser, run ${run + 1} of ${runs}: ${file}\n`);
      const browser = await chromium.launch({executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: flags});
      results[i].push(await open(browser, file));
      await browser.close();
    }
  return results.map((seconds) => ({least: Math.min(...seconds), wall: median(seconds)}));
}
