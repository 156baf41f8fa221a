// Measures what the page costs in Chromium and Firefox: measure_web.mjs [RUNS]. BUILD is the folder
// in which tests/web/run has built it. Prints medians of runs made in turn: milliseconds from
// navigation to the first paint, also of an empty page of the same size; microseconds from an event
// of the pointer to the changed outline in a drag, for steps of a pixel and of a square;
// milliseconds of processor time of all browser processes in 10 s at rest, also with an empty page,
// and in a computer's turn; KiB of the program's memory.
import {execFileSync} from 'node:child_process';
import {readFileSync, statSync, writeFileSync} from 'node:fs';
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
const rest = milliseconds => new Promise(done => setTimeout(done, milliseconds));
const median = values => values.sort((a, b) => a - b)[Math.floor(values.length / 2)];

/// The processor time of a process and all its descendants, in milliseconds.
function processorTime(root) {
  const parents = new Map(
    execFileSync('ps', ['-eo', 'pid=,ppid='])
      .toString()
      .trim()
      .split('\n')
      .map(line => line.trim().split(/\s+/).map(Number)),
  );
  const isOurs = pid => pid == root || (parents.has(pid) && isOurs(parents.get(pid)));
  let ticks = 0;
  for (const pid of [...parents.keys()].filter(isOurs)) {
    try {
      const fields = readFileSync(`/proc/${pid}/stat`, 'utf8').split(') ')[1].split(' ');
      ticks += Number(fields[11]) + Number(fields[12]);
    } catch {
      /* it has ended meanwhile */
    }
  }
  return ticks * 10;
}

async function paintOf(browser, file) {
  const tab = await browser.newPage();
  await tab.goto(url(file));
  const seen = await tab.waitForFunction(
    () => performance.getEntriesByName('first-contentful-paint')[0]?.startTime,
    {timeout: 10000},
  );
  const time = await seen.jsonValue();
  await tab.close();
  return time;
}

async function costOf(browser, milliseconds) {
  const before = processorTime(browser.process().pid);
  await rest(milliseconds);
  return processorTime(browser.process().pid) - before;
}

async function measure(name) {
  const browser = await launch(name);
  const paints = {page: [], empty: []};
  for (let run = 0; run < runs; ++run) {
    paints.empty.push(await paintOf(browser, empty));
    paints.page.push(await paintOf(browser, page));
  }
  const tab = await browser.newPage();
  await tab.goto(url(empty));
  await rest(2000);
  const emptyAtRest = await costOf(browser, 10000);
  await tab.goto(url(page));
  await tab.waitForFunction(() => document.querySelector('dialog').open, {timeout: 10000});
  await tab.keyboard.press('Enter');
  await rest(2000);
  const atRest = await costOf(browser, 10000);
  const events = await tab.evaluate(() => {
    const view = document.querySelector('#view'),
      area = view.getBoundingClientRect();
    const outline = view.lastElementChild,
      side = area.width / 8;
    view.setPointerCapture = () => {};
    const send = (type, buttons, x) =>
      view.dispatchEvent(
        new PointerEvent(type, {
          isPrimary: true,
          buttons,
          clientX: area.x + x,
          clientY: area.y + 5.5 * side,
        }),
      );
    const costOf = step => {
      const times = 1000,
        start = performance.now();
      for (let k = 1; k <= times; ++k) {
        const before = outline.firstElementChild;
        send('pointermove', 1, side / 2 + (k % 7) * step);
        if (outline.firstElementChild == before) throw new Error('The outline has not moved.');
      }
      return ((performance.now() - start) / times) * 1000;
    };
    // The least of several rounds: the first ones still compile, and the machine may be busy.
    const leastOf = step => Math.min(...Array.from({length: 8}, () => costOf(step))).toFixed(0);
    send('pointerdown', 1, side / 2);
    const costs = [leastOf(1), leastOf(side)].join(' and ');
    send('pointermove', 0, side / 2); // without a button: the drag is over
    return costs;
  });
  const area = await (await tab.$('#view')).boundingBox();
  const at = (column, row) => [
    area.x + ((column + 0.5) * area.width) / 8,
    area.y + ((row + 0.5) * area.height) / 8,
  ];
  await tab.mouse.move(...at(0, 5));
  await tab.mouse.down();
  await tab.mouse.move(...at(1, 4));
  await tab.mouse.up();
  const turn = await costOf(browser, 3500);
  const memory = await tab.evaluate(() => velmoran.program.memory.buffer.byteLength / 1024);
  await browser.close();
  console.log(
    `${name}: splash ${median(paints.page).toFixed(0)} ms, empty page ${median(
      paints.empty,
    ).toFixed(0)} ms; an event ${events} us; 10 s at rest ${
      atRest
    } ms, empty page ${emptyAtRest} ms; a turn ${turn} ms; memory ${memory} KiB`,
  );
}

console.log(`${size} bytes, ${gzipSync(readFileSync(page), {level: 9}).length} gzipped`);
for (const name of ['chrome', 'firefox']) await measure(name);
