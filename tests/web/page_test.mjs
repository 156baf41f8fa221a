// Plays on the page as a person does: page_test.mjs BROWSER, with the build folder as BUILD.
import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {once} from 'node:events';
import {createServer} from 'node:http';
import {after, before, test} from 'node:test';
import {pathToFileURL} from 'node:url';
import {folder, launch} from './browsers.mjs';

const Start = 'gggg gggg gggg .... .... bbbb bbbb bbbb';
const Moved = 'gggg gggg gggg .... b... .bbb bbbb bbbb';  // from 9 to 13
const Desk = {width: 800, height: 700};
const pageUrl = pathToFileURL(`${folder}/velmoran.html`).href;

/// What runs in the page before its own script: the board as it is read out, a place for what goes
/// wrong, and, unless the seconds since midnight are empty, a clock that stands still until `tick`.
function prepare(seconds) {
  window.board = () => {
    const rows = [];
    for (let row = 7; row >= 0; --row) {
      rows.push([1, 2, 3, 4].map(column => {
        const label = document.querySelector(`[aria-label$=" square ${4 * row + column}"]`).ariaLabel;
        const mark = label.startsWith('free') ? '.' : label[0];
        return label.includes('king') ? mark.toUpperCase() : mark;
      }).join(''));
    }
    return rows.join(' ');
  };
  window.complaints = [];
  addEventListener('securitypolicyviolation', event => complaints.push(event.violatedDirective));
  if (seconds === null) return;
  window.clock = {now: 0, tick: null};
  performance.now = () => clock.now;
  const {setTimeout, clearTimeout} = window;  // the driver's own
  const Alarm = -1;
  window.setTimeout = (call, delay) => {
    if (call != goOn) return setTimeout(call, delay);
    clock.tick = () => {
      clock.tick = null;
      clock.now += delay;
      call();
    };
    return Alarm;
  };
  window.clearTimeout = id => {
    if (id == Alarm) clock.tick = null;
    else clearTimeout(id);
  };
  window.settle = () => { while (clock.tick && !box.open) clock.tick(); };
  Date.prototype.getHours = Date.prototype.getMinutes = Date.prototype.getMilliseconds = () => 0;
  Date.prototype.getSeconds = () => seconds;
}

/// One page in a browser, with a hand of real input.
class Hand {
  static async open(browser, {url = pageUrl, view = Desk, seconds = 1, change} = {}) {
    const hand = new Hand();
    hand.page = await browser.newPage();
    hand.faults = [];
    hand.requests = [];
    hand.page.on('console', message => hand.faults.push(message.text()));
    hand.page.on('pageerror', error => hand.faults.push(error.message));
    hand.page.on('request', request => hand.requests.push(request.url()));
    await hand.page.setViewport(view);
    await hand.page.bringToFront();
    // Otherwise one of the two pretends that every page is in front.
    if (!(await browser.version()).startsWith('firefox')) await hand.page.emulateFocusedPage(false);
    await hand.page.evaluateOnNewDocument(prepare, seconds);
    if (change) await hand.page.evaluateOnNewDocument(change);
    await hand.page.goto(url);
    return hand;
  }

  /// A page whose splash and first box are over. The game waits for blue.
  static async openBoard(browser, options) {
    const hand = await Hand.open(browser, options);
    await hand.has(() => clock.tick);
    await hand.settle();
    await hand.closeBox();
    await hand.settle();
    return hand;
  }

  async close(faults = []) {
    assert.deepEqual(this.faults, faults);
    assert.deepEqual(await this.page.evaluate(() => complaints), []);
    await this.page.close();
  }

  /// The box goes at once, but the game goes on only once the page hears of that.
  async closeBox(key = 'Enter') {
    await this.keys(key);
    await this.has(() => isWaiting);
  }

  has(condition) { return this.page.waitForFunction(condition, {timeout: 10000, polling: 20}); }
  board() { return this.page.evaluate(() => board()); }
  settle() { return this.page.evaluate(() => settle()); }
  tick(times) {
    return this.page.evaluate(count => { while (count--) clock.tick(); }, times);
  }
  outline() { return this.page.$eval('#view > g:last-child', group => group.childElementCount); }
  focus() { return this.page.evaluate(() => document.activeElement.innerText ?? 'board'); }
  title() { return this.page.evaluate(() => box.open ? box.querySelector('h1').innerText : ''); }

  async at(square) {
    const area = await (await this.page.$('#view')).boundingBox();
    const row = Math.floor((square - 1) / 4), column = 2 * ((square - 1) % 4) + row % 2;
    return [area.x + (column + .5) * area.width / 8, area.y + (7.5 - row) * area.height / 8];
  }
  async press(square) {
    await this.page.mouse.move(...await this.at(square));
    await this.page.mouse.down();
  }
  async drag(from, to) {
    await this.press(from);
    await this.page.mouse.move(...await this.at(to));
    await this.page.mouse.up();
  }
  async keys(...names) {
    for (const name of names) await this.page.keyboard.press(name);
  }
  async shortcut(letter) {
    await this.page.keyboard.down('Control');
    await this.keys(letter);
    await this.page.keyboard.up('Control');
  }
  async choose(menu, item) {
    await this.page.locator(`::-p-xpath(//nav//button[.="${menu}"])`).click();
    await this.page.locator(`::-p-xpath(//nav//button[starts-with(., "${item}")])`).click();
  }
}

/// Plays a recorded game: a drag a line, and behind it the board. It is played by events of the
/// page's own, for a hand would take an hour.
async function replay(lines) {
  const view = document.querySelector('#view');
  view.setPointerCapture = () => {};
  const area = view.getBoundingClientRect();
  const send = (type, square, buttons) => {
    const row = Math.floor((square - 1) / 4), column = 2 * ((square - 1) % 4) + row % 2;
    view.dispatchEvent(new PointerEvent(type, {
      isPrimary: true, buttons,
      clientX: area.x + (column + .5) * area.width / 8, clientY: area.y + (7.5 - row) * area.height / 8,
    }));
  };
  const told = [];
  for (const line of lines) {
    const squares = line.split(' | ')[0].split(' ').map(Number);
    send('pointermove', squares[0], 0);
    send('pointerdown', squares[0], 1);
    for (const square of squares) send('pointermove', square, 1);
    send('pointerup', squares.at(-1), 0);
    settle();
    told.push(`${squares.join(' ')} | ${board()}`);
  }
  return [...told, box.querySelector('section').textContent];
}

/// The recorded games: the second of the day that seeds one, then its turns and its end. The number
/// of draws behind each turn is left out: one too many shows in the boards that follow.
function recordedGames() {
  return readFileSync('tests/data/games.txt', 'utf8').trim().split(/^game /m).slice(1)
      .map(game => game.trim().split('\n').map(line => line.replace(/ \| \d+$/, '')));
}

// All of it in one browser, which is the argument.
const name = process.argv[2];
let browser;
before(async () => { browser = await launch(name); });
after(() => browser.close());
const check = (what, steps) => test(`${name}: ${what}`, {timeout: 60000}, steps);

check('a turn in real time, over http, with one request and nothing kept', async () => {
  const server = createServer((_, answer) => {
    answer.setHeader('Content-Type', 'text/html').end(readFileSync(`${folder}/velmoran.html`));
  }).listen(0, '127.0.0.1');
  await once(server, 'listening');
  const url = `http://127.0.0.1:${server.address().port}/`;
  const hand = await Hand.open(browser, {url, seconds: null});
  await hand.has(() => document.querySelector('#view text')?.textContent == 'Velmoran');
  await hand.has(() => box.open);
  await hand.keys('Enter');
  await hand.has(() => !box.open);
  await hand.drag(9, 13);
  assert.equal(await hand.board(), Moved);
  await hand.has(() => document.querySelector('#news').innerText.includes('green'));
  assert.deepEqual(hand.requests.filter(request => !request.startsWith('data:')), [url]);
  assert.deepEqual(await hand.page.evaluate(async () => [
    document.cookie, localStorage.length, sessionStorage.length, (await indexedDB.databases()).length,
  ]), ['', 0, 0, 0]);
  await hand.close();
  server.close();
});

check('a hidden page plays its turn to the end', async () => {
  const hand = await Hand.open(browser, {seconds: null});
  await hand.has(() => box.open);
  await hand.keys('Escape');
  await hand.has(() => !box.open);
  await hand.drag(9, 13);
  const other = await browser.newPage();
  await other.bringToFront();
  await hand.has(() => document.hidden);
  await hand.has(() => document.querySelector('#news').innerText.includes('green'));
  await other.close();
  await hand.close();
});

check('every end of a drag', async () => {
  const hand = await Hand.openBoard(browser);
  const {page} = hand;
  const cover = async () => {
    const other = await browser.newPage();
    await other.bringToFront();
    await hand.has(() => document.hidden);
    await page.bringToFront();
    await other.close();
  };
  const ends = {
    escape: () => hand.keys('Escape'),
    'second button': () => page.mouse.down({button: 'right'}),
    'menu by the keys': () => page.evaluate(() => {
      document.querySelector('nav button').dispatchEvent(
          new KeyboardEvent('keydown', {key: 'ArrowDown', bubbles: true}));
    }),
    'another window': () => page.evaluate(() => dispatchEvent(new Event('blur'))),
    'hidden page': cover,
    'lost pointer': () => page.$eval('#view', view => {
      view.dispatchEvent(new PointerEvent('lostpointercapture'));
    }),
    box: () => hand.shortcut('a'),
  };
  for (const [end, act] of Object.entries(ends)) {
    await hand.press(9);
    await page.mouse.move(...await hand.at(13));
    assert.equal(await hand.outline(), 2, end);
    await act();
    assert.equal(await hand.outline(), 0, end);
    if (end == 'box') await hand.closeBox();
    if (end == 'second button') await page.mouse.up({button: 'right'});
    await page.mouse.up();
    assert.equal(await hand.board(), Start, end);
  }
  await hand.press(9);
  await page.mouse.move(...await hand.at(13));
  await page.mouse.move(5, 5);
  assert.equal(await hand.outline(), 2, 'the pointer is followed outside');
  await page.mouse.up();
  assert.deepEqual([await hand.board(), await hand.outline()], [Start, 0]);
  await hand.drag(9, 13);
  assert.equal(await hand.board(), Moved);
  await hand.close();
});

check('New Game and a box in the middle of a turn', async () => {
  const hand = await Hand.openBoard(browser);
  await hand.drag(9, 13);
  await hand.tick(3);
  await hand.choose('Help', 'About');
  assert.equal(await hand.title(), 'About Velmoran');
  assert.equal(await hand.page.evaluate(() => clock.tick), null, 'timers are held');
  await hand.page.mouse.click(...await hand.at(30));
  await hand.closeBox();
  assert.deepEqual([await hand.title(), await hand.focus()], ['', 'board']);
  await hand.tick(1);
  await hand.choose('File', 'New Game');
  await hand.settle();
  assert.equal(await hand.board(), Start);
  await hand.drag(9, 13);
  await hand.settle();
  assert.match(await hand.board(), /g.* b\.\.\. \.bbb bbbb bbbb$/);
  await hand.page.reload();
  await hand.has(() => document.querySelector('#view text')?.textContent == 'Velmoran');
  await hand.close();
});

check('menus by keys', async () => {
  const hand = await Hand.openBoard(browser);
  const focusAfter = async (...keys) => {
    await hand.keys(...keys);
    return (await hand.focus()).split('\n')[0];
  };
  assert.equal(await focusAfter('Tab'), 'File');
  assert.equal(await focusAfter('ArrowDown'), 'New Game');
  assert.equal(await focusAfter('ArrowDown', 'ArrowDown'), 'New Game');
  assert.equal(await focusAfter('ArrowLeft', 'ArrowUp'), 'Official Rules of Velmoran');
  assert.equal(await focusAfter('ArrowRight'), 'Part 1');
  assert.equal(await focusAfter('Escape'), 'Official Rules of Velmoran');
  assert.equal(await focusAfter('r'), 'Part 1');
  await hand.keys('3');
  assert.equal(await hand.title(), 'Rules of Velmoran (Part 3)');
  await hand.keys('Escape');
  assert.equal(await focusAfter('Tab', 'Enter'), 'New Game');
  assert.equal(await focusAfter('Escape', 'Escape'), 'board');
  await hand.page.evaluate(() => {
    document.dispatchEvent(
        new KeyboardEvent('keydown', {key: '\u0441', code: 'KeyC', ctrlKey: true}));  // Cyrillic
  });
  assert.equal(await hand.title(), 'Velmoran Game Controls');
  await hand.keys('Enter');
  await hand.shortcut('x');
  assert.equal(await hand.page.$eval('main', main => main.innerText.split('\n')[0]), 'The game is closed.');
  await hand.keys('Enter');
  await hand.has(() => document.querySelector('#view text')?.textContent == 'Velmoran');
  await hand.close();
});

check('a finger on a phone', async () => {
  const hand = await Hand.openBoard(browser, {view: {width: 360, height: 640, deviceScaleFactor: 3}});
  const {page} = hand;
  assert.equal((await (await page.$('#view')).boundingBox()).width, 360);
  const touch = await page.touchscreen.touchStart(...await hand.at(9));
  await touch.move(...await hand.at(13));
  assert.equal(await hand.outline(), 2);
  await touch.end();
  assert.equal(await hand.board(), Moved);
  assert.deepEqual(await page.evaluate(() => [
    devicePixelRatio, scrollX, scrollY, visualViewport.scale, getSelection().toString(),
    document.documentElement.scrollWidth,
  ]), [3, 0, 0, 1, '', 360]);
  await page.setViewport({width: 320, height: 400});
  await hand.shortcut('c');
  assert(await page.evaluate(() => {
    const [title, text, button] = find('h1, p, button', box).map(part => part.getBoundingClientRect());
    return title.top > 0 && text.top > title.bottom && button.bottom < innerHeight;
  }), 'title, text and button of a long box');
  await hand.close();
});

check('sharp at every ratio', async () => {
  for (const ratio of [1, 1.25, 1.5, 2]) {
    const hand = await Hand.openBoard(browser, {view: {...Desk, deviceScaleFactor: ratio}});
    const shot = await (await hand.page.$('#view')).screenshot({encoding: 'base64'});
    const colours = await hand.page.evaluate(async data => {
      const image = new Image();
      image.src = 'data:image/png;base64,' + data;
      await image.decode();
      const canvas = new OffscreenCanvas(image.width, image.height).getContext('2d');
      canvas.drawImage(image, 0, 0);
      // Past the discs, near the upper edge of the squares.
      const row = canvas.getImageData(4, 2, image.width - 8, 1).data;
      return [...new Set(new Uint32Array(row.buffer))];
    }, shot);
    assert.equal(colours.length, 2, `at ${ratio}`);
    await hand.close();
  }
});

check('a page that cannot go on says so', async () => {
  const sentence = hand => hand.page.$eval('main', main => main.innerText.split('\n')[0]);
  const old = await Hand.open(browser, {change: () => { delete window.DecompressionStream; }});
  await old.has(() => main.className == '');
  assert.match(await sentence(old), /newer browser/);
  assert.equal(old.faults.length, 1);
  await old.close(old.faults);
  const hand = await Hand.openBoard(browser);
  await hand.page.evaluate(() => {
    window.addEventListener('broken', () => put(Kinds.MenuCommand, 0, 0, 99));
    dispatchEvent(new Event('broken'));
  });
  assert.match(await sentence(hand), /stopped/);
  await hand.page.mouse.click(300, 300);
  assert.equal(hand.faults.length, 1);
  await hand.close(hand.faults);
});

check('whole games as on the virtual host', async () => {
  const games = recordedGames();
  assert.equal(games.length, 6);
  for (const [second, ...lines] of games) {
    const hand = await Hand.openBoard(browser, {seconds: Number(second)});
    assert.deepEqual(await hand.page.evaluate(replay, lines.slice(0, -1)), lines);
    await hand.close();
  }
});

// Of the two only this one tells the driver its tree.
if (name == 'chrome') check('what is read out', async () => {
  const hand = await Hand.openBoard(browser);
  const named = async () => {
    const names = [];
    const walk = node => {
      names.push(`${node.role} ${node.name}`.trim());
      (node.children ?? []).forEach(walk);
    };
    walk(await hand.page.accessibility.snapshot({interestingOnly: false}));
    return names;
  };
  const first = await named();
  for (const name of ['menubar', 'menuitem File', 'menuitem Help', 'log', 'image blue man on square 9']) {
    assert.equal(first.filter(other => other == name).length, 1, name);
  }
  assert.equal(first.filter(name => / square \d+$/.test(name)).length, 32);
  await hand.drag(9, 13);
  await hand.settle();
  const after = await named();
  const changed = after.filter(name => /^image /.test(name) && !first.includes(name));
  const told = await hand.page.$$eval('#news p', news => news.map(line => line.textContent).join(', '));
  assert.equal(changed.length, 4);
  assert.deepEqual(told.split(', ').sort(), changed.map(name => name.slice(6)).sort());
  await hand.shortcut('a');
  const asked = await named();
  assert(asked.includes('dialog About Velmoran') && asked.includes('button OK'));
  await hand.close();
});
