// The folder of the page, as BUILD, and the browsers that it is tried in.
import {createRequire} from 'node:module';
import {resolve} from 'node:path';

export const folder = resolve(process.env.BUILD ?? 'build-web');
const puppeteer = createRequire(folder + '/')('puppeteer-core');

/// Debian's browsers: the one by its developer tools, the other by the standard protocol.
const browsers = {
  chrome: {executablePath: '/usr/bin/chromium', args: ['--no-sandbox']},
  firefox: {executablePath: '/usr/bin/firefox-esr'},
};

export const launch = name => puppeteer.launch({browser: name, ...browsers[name]});
