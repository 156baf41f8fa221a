// Measures what the page costs in Chromium and Firefox: measure_web.mjs [RUNS]. BUILD is the folder
// in which tests/web/run has built it. Prints medians of runs made in turn: milliseconds from
// navigation to the first paint, also of an empty page of the same size; microseconds from an event
// of the pointer to the changed outline in a drag, for steps of a pixel and of a square;
// milliseconds of processor time of all browser processes in 10 s at rest, also with an empty page,
// and in a computer's turn; KiB of the program's memory.
import {execSync} from 'node:child_process';
import {readFileSync, statSync, writeFileSync} from 'node:fs';
import {setTimeout as rest} from 'node:timers/promises';
import {pathToFileURL} from 'node:url';
import {gzipSync} from 'node:zlib';
import {folder, launch} from '../tests/web/browsers.mjs';

const runs = Number(process.argv[2] ?? 5);
const page = `${folder}/velmoran.html`,
  empty = `${folder}/empty.html`;
const size = statSync(page).size;
const head = '<!DOCTYPE html><title>Empty</title><body><p>Empty</p><!--';
writeFileSync(empty, head + '.'.repeat(size - head.length - 3) + '-->');

const url = file => pathToFileURL(file).href;
const median = values => values.sort((a, b) => a - b)[Math.floor(values.length / 2)].toFixed(0);

/// The processor time of a process and all its descendants, in milliseconds.
function processorTime(root) {
  const stats = execSync('cat /proc/[0-9]*/stat 2>&1 || true').toString(); // some have ended
  const fields = /^(\d+) \(.*\) \w (\d+) (?:\S+ ){9}(\d+) (\d+)/gm; // the ids, then ticks
  const processes = [...stats.matchAll(fields)].map(found => found.slice(1).map(Number));
  const parents = new Map(processes);
  const isOurs = pid => pid == root || (parents.has(pid) && isOurs(parents.get(pid)));
  const ours = processes.filter(([pid]) => isOurs(pid));
  return 10 * ours.reduce((ticks, [, , user, system]) => ticks + user + system, 0);
}

async function costOf(browser, milliseconds) {
  const before = processorTime(browser.process().pid);
  await rest(milliseconds);
  return processorTime(browser.process().pid) - before;
}

/// Runs in the page: the microseconds of an event in a drag, for steps of a pixel and of a square.
function costsOfEvents() {
  const {x, y, width} = view.getBoundingClientRect(),
    side = width / 8;
  view.setPointerCapture = () => {};
  const send = (type, buttons, right) => {
    const place = {clientX: x + side / 2 + right, clientY: y + 5.5 * side};
    view.dispatchEvent(new PointerEvent(type, {isPrimary: true, buttons, ...place}));
  };
  const costOf = step => {
    const times = 1000,
      start = performance.now();
    for (let k = 1; k <= times; ++k) {
      const before = view.lastElementChild.firstElementChild;
      send('pointermove', 1, (k % 7) * step);
      if (view.lastElementChild.firstElementChild == before) throw 'The outline has not moved.';
    }
    return ((performance.now() - start) / times) * 1000;
  };
  // The least of several rounds: the first ones still compile, and the machine may be busy.
  const leastOf = step => Math.min(...Array.from({length: 8}, () => costOf(step))).toFixed(0);
  send('pointerdown', 1, 0);
  const costs = `${leastOf(1)} and ${leastOf(side)}`;
  send('lostpointercapture', 0, 0); // the drag is over, and the pointer is free
  return costs;
}

console.log(`${size} bytes, ${gzipSync(readFileSync(page), {level: 9}).length} gzipped`);
for (const name of ['chrome', 'firefox']) {
  const browser = await launch(name);
  const paints = {[page]: [], [empty]: []};
  for (let run = 0; run < runs; ++run) {
    for (const file of [empty, page]) {
      const tab = await browser.newPage();
      await tab.goto(url(file));
      const paint = "performance.getEntriesByName('first-contentful-paint')[0]?.startTime";
      paints[file].push(await (await tab.waitForFunction(paint)).jsonValue());
      await tab.close();
    }
  }
  const tab = await browser.newPage();
  await tab.goto(url(empty));
  await rest(2000);
  const emptyAtRest = await costOf(browser, 10000);
  await tab.goto(url(page));
  await tab.waitForSelector('dialog[open]');
  await tab.keyboard.press('Enter');
  await rest(2000);
  const atRest = await costOf(browser, 10000);
  const events = await tab.evaluate(costsOfEvents);
  await tab.hover('[aria-label$=" square 9"]');
  await tab.mouse.down();
  await tab.hover('[aria-label$=" square 13"]');
  await tab.mouse.up();
  const turn = await costOf(browser, 3500);
  const memory = await tab.evaluate('program.memory.buffer.byteLength / 1024');
  await browser.close();
  console.log(
    `${name}: splash ${median(paints[page])} ms, empty page ${median(paints[empty])} ms;`,
  );
  console.log(`  an event ${events} us; 10 s at rest ${atRest} ms, empty page ${emptyAtRest} ms;`);
  console.log(`  a turn ${turn} ms; memory ${memory} KiB`);
}
