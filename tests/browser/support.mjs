// What the tests of pages share: a browser, and pages that must not complain.

import {readFileSync} from 'node:fs';
import {createRequire} from 'node:module';
import {join, resolve} from 'node:path';
import {pathToFileURL} from 'node:url';
import {after, before} from 'node:test';
import assert from 'node:assert/strict';
import {chromium} from 'playwright-core';

export const charts = resolve(process.env.CHARTS ?? 'build/browser/charts');
export const urlOf = (...path) => pathToFileURL(join(charts, ...path)).href;

const flags = [
  '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync',
];
const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

/** A browser, with more in its environment. */
export function launch(environment = {}) {
  const executablePath = process.env.CHROMIUM ?? '/usr/bin/chromium';
  return chromium.launch({executablePath, args: flags, env: {...process.env, ...environment}});
}

let usual;
before(async () => {
  usual = await launch();
});
after(() => usual?.close());

/** Opens a page, hands it to `act`, and fails when the browser complained of anything. */
export async function withPage(url, act, options = {}, browser = usual) {
  const context = await browser.newContext({viewport: {width: 1200, height: 900}, ...options});
  const complaints = [];
  const page = await context.newPage();
  page.on('console', (message) => complaints.push(message.text()));
  page.on('pageerror', (error) => complaints.push(error.message));
  page.on('dialog', (dialog) => complaints.push(`dialog: ${dialog.message()}`) && dialog.dismiss());
  page.on('request', (request) => {
    if (!/^(file|data|blob):/.test(request.url())) complaints.push(`fetches ${request.url()}`);
  });
  try {
    await page.goto(url);
    await act(page);
    assert.deepEqual(complaints, []);
    assert.equal(await page.evaluate('window.broken'), undefined);
  } catch (error) {
    error.message += `\nThe browser said: ${complaints.join('\n')}`;
    throw error;
  } finally {
    await context.close();
  }
}

/** The same for a chart's page, once it is drawn. */
export const withChart = (folder, act, options, browser) =>
  withPage(urlOf(folder, 'chart.html'), async (page) => {
    await until(page, "document.getElementById('trouble') === null");
    await act(page);
  }, options, browser);

/** Fails with what axe finds, each with the elements that it is found in. */
export async function assertAccessible(page) {
  await page.evaluate(axe);
  const {violations} = await page.evaluate('axe.run()');
  const told = violations.map(({id, help, nodes}) => `${id}: ${help}: ${nodes.map(({html}) => html)}`);
  assert.deepEqual(told, []);
}

/** Waits until an expression of the page is true; the page's own policy lets none wait in it. */
export async function until(page, expression) {
  const end = Date.now() + 20_000;
  while (!(await page.evaluate(expression))) {
    assert.ok(Date.now() < end, `waited in vain for ${expression}`);
    await page.waitForTimeout(30);
  }
}

/** The file that a button saves. */
export async function saved(page, button) {
  const [download] = await Promise.all([
    page.waitForEvent('download'), page.getByRole('button', {name: button, exact: true}).click(),
  ]);
  return download.path();
}
