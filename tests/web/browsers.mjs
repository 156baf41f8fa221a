// The folder of the page, given as BUILD, and the browsers that play it.
import {createRequire} from 'node:module';
import {resolve} from 'node:path';
import {launchWebKit} from './webkit.mjs';

export const folder = resolve(process.env.BUILD ?? 'build-web');
export const fetched = createRequire(folder + '/');
const puppeteer = fetched('puppeteer-core');

/// Debian's browsers: Chromium by its developer tools, Firefox by the standard protocol.
const browsers = {
  chrome: {executablePath: '/usr/bin/chromium', args: ['--no-sandbox']},
  firefox: {executablePath: '/usr/bin/firefox-esr'},
};

export const launch = name =>
  name == 'webkit' ? launchWebKit() : puppeteer.launch({browser: name, ...browsers[name]});
