// How long a browser takes from opening a file to the frame that shows all of its picture.

import {pathToFileURL} from 'node:url';
import {chromium} from 'playwright-core';
import {median} from './measure.mjs';

const patience = 60_000;
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

async function open(browser, file) {
  const page = await browser.newPage({viewport: {width: 1200, height: 900}});
  try {
    await page.addInitScript(watch);
    await page.goto(pathToFileURL(file).href, {timeout: patience, waitUntil: 'commit'});
    const end = Date.now() + patience;
    while (Date.now() < end) {
      const seconds = await page.evaluate('globalThis.wholePicture');
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

/**
 * Least and median seconds to the whole picture of each file, each in a browser of its own.
 * A file that takes longer than a minute is tried once.
 */
export async function wholePictures(files, runs) {
  const results = files.map(() => []);
  for (let run = 0; run < runs; ++run)
    for (const [i, file] of files.entries()) {
      if (results[i].includes(Infinity)) continue;
      process.stderr.write(`browser, run ${run + 1} of ${runs}: ${file}\n`);
      const browser = await chromium.launch({executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: flags});
      results[i].push(await open(browser, file));
      await browser.close();
    }
  return results.map((seconds) => ({least: Math.min(...seconds), wall: median(seconds)}));
}
