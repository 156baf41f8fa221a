// Plays on the page as a person does: page_test.mjs BROWSER, with the build folder as BUILD.
import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {once} from 'node:events';
import {createServer} from 'node:http';
import {after, before, test} from 'node:test';
import {pathToFileURL} from 'node:url';
import {fetched, folder, launch} from './browsers.mjs';

const browserName = process.argv[2];
const Start = 'gggg gggg gggg .... .... bbbb bbbb bbbb';
const Moved = 'gggg gggg gggg .... b... .bbb bbbb bbbb';  // from 9 to 13
const Desk = {width: 800, height: 700};
const rest = milliseconds => new Promise(done => setTimeout(done, milliseconds));
const file = `${folder}/velmoran.html`, html = readFileSync(file, 'utf8');
const axe = readFileSync(fetched.resolve('axe-core/axe.min.js'), 'utf8');

/// What runs in the page before its own scripts: questions of the tests, a place for what goes
/// wrong, and a clock that stands still until `tick`, so many seconds after midnight. With null for
/// these the clock is the browser's own.
function prepare(seconds) {
  window.all = (selector, read = element => element) =>
    [...document.querySelectorAll(selector)].map(read);
  window.board = () => {
    const rows = [];
    for (let row = 7; row >= 0; --row) {
      rows.push([1, 2, 3, 4].map(column => {
        const [{ariaLabel: label}] = all(`[aria-label$=" square ${4 * row + column}"]`);
        const mark = label.startsWith('free') ? '.' : label[0];
        return label.includes('king') ? mark.toUpperCase() : mark;
      }).join(''));
    }
    return rows.join(' ');
  };
  window.outline = () => document.querySelector('#view > g:last-child').childElementCount;
  window.isBoxOpen = () => document.querySelector('dialog').open;
  window.middleOf = square => {
    const {x, y, width, height} = document.querySelector('#view').getBoundingClientRect();
    const row = Math.floor((square - 1) / 4), column = 2 * ((square - 1) % 4) + row % 2;
    return [x + (column + .5) * width / 8, y + (7.5 - row) * height / 8];
  };
  window.point = (type, square, options) => {
    const [clientX, clientY] = middleOf(square);
    document.querySelector('#view').dispatchEvent(new PointerEvent(type, {
      isPrimary: true, pointerId: window.pointer, clientX, clientY, ...options,
    }));
  };
  window.complaints = [];
  const complain = what => { complaints.push(String(what)); };
  addEventListener('securitypolicyviolation', event => complain(event.violatedDirective));
  addEventListener('error', event => complain(event.message));
  addEventListener('unhandledrejection', event => complain(event.reason));
  addEventListener('contextmenu', event => event.defaultPrevented || complain('a context menu'));
  addEventListener('pointerdown', event => { window.pointer = event.pointerId; }, true);
  console.error = complain;
  if (seconds === null) return;
  window.clock = {now: 0, tick: null};
  performance.now = () => clock.now;
  const {setTimeout, clearTimeout} = window;
  const Alarm = -1;
  window.setTimeout = (call, delay) => {
    if (call.name != 'goOn') return setTimeout(call, delay);  // the driver's own
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
  window.settle = () => { while (clock.tick && !isBoxOpen()) clock.tick(); };
  // It is always past one o'clock, by fewer minutes than none: so that hours count, too.
  Date.prototype.getHours = () => 1;
  Date.prototype.getMinutes = () => Math.floor(seconds / 60) - 60;
  Date.prototype.getSeconds = () => seconds % 60;
  Date.prototype.getMilliseconds = () => 0;
}

// Serves the page with `prepare` before its policy, so that the page itself stays as it is.
const bodies = new Map();
const requests = [];
const server = createServer((request, answer) => {
  requests.push(request.url);
  answer.setHeader('Content-Type', 'text/html').end(bodies.get(request.url));
});

/// One page in a browser, with a hand of real input.
class Hand {
  static async open(browser, {view = Desk, seconds = 1, body = html, change = ''} = {}) {
    const hand = new Hand();
    hand.page = await browser.newPage();
    await hand.page.setViewport(view);
    await hand.page.bringToFront();
    // Otherwise it pretends that every page is in front.
    if (browserName == 'chrome') await hand.page.emulateFocusedPage(false);
    const url = `/${bodies.size}`;
    bodies.set(url, body.replace(
        '<head>', `<head><script>(${prepare})(${seconds}); (${change || (() => {})})()</script>`));
    await hand.page.goto(`http://127.0.0.1:${server.address().port}${url}`);
    return hand;
  }

  /// A page whose splash and first box are over. The game waits for blue.
  static async openBoard(browser, options) {
    const hand = await Hand.open(browser, options);
    await hand.has(() => clock.tick !== null);
    await hand.settle();
    await hand.closeBox();
    await hand.settle();
    return hand;
  }

  async close(complaints = []) {
    assert.deepEqual(await this.page.evaluate(() => complaints), complaints);
    await this.page.close();
  }

  /// The box goes at once, but the game goes on only once the page hears of that.
  async closeBox(key = 'Enter') {
    await this.keys(key);
    await this.has(() => velmoran.awaited == 'input');
  }

  async has(condition) {
    // A page that is just being left has no answer.
    for (let tries = 500; !await this.page.evaluate(condition).catch(() => false); --tries) {
      assert(tries, `never came: ${condition}`);
      await rest(20);
    }
  }
  board() { return this.page.evaluate(() => board()); }
  settle() { return this.page.evaluate(() => settle()); }
  tick(times) {
    return this.page.evaluate(count => { while (count--) clock.tick(); }, times);
  }
  outline() { return this.page.evaluate(() => outline()); }
  focus() {
    return this.page.evaluate(() => {
      const {id, firstChild} = document.activeElement;
      return id == 'view' ? 'board' : firstChild.textContent;
    });
  }
  /// Accessibility as axe-core judges it.
  async judge(what) {
    await this.page.evaluate(`(() => {${axe}})()`);
    assert.deepEqual(await this.page.evaluate(async () => (await axe.run()).violations
        .filter(({impact}) => impact == 'serious' || impact == 'critical')
        .map(({help, nodes}) => [help, ...nodes.map(node => node.html)])), [], what);
  }
  title() {
    return this.page.evaluate(() => isBoxOpen() ? document.querySelector('h1').innerText : '');
  }
  sentence() {
    return this.page.evaluate(() => document.querySelector('main').innerText.split('\n')[0]);
  }

  /// The middle of a square, or of the first element that a selector names and that has this text.
  at(what, text = '') {
    return this.page.evaluate((what, text) => {
      if (Number(what)) return middleOf(what);
      const {x, y, width, height} = all(what).find(
          element => element.innerText.startsWith(text)).getBoundingClientRect();
      return [x + width / 2, y + height / 2];
    }, what, text);
  }
  async click(...place) { await this.page.mouse.click(...await this.at(...place)); }
  async move(...place) { await this.page.mouse.move(...await this.at(...place)); }
  async press(square) {
    await this.move(square);
    await this.page.mouse.down();
  }
  async drag(from, to) {
    await this.press(from);
    await this.move(to);
    await this.page.mouse.up();
  }
  async keys(...names) {
    for (const name of names) await this.page.keyboard.press(name);
  }
  async shortcut(letter, key = 'Control') {
    await this.page.keyboard.down(key);
    await this.keys(letter);
    await this.page.keyboard.up(key);
  }
  async choose(menu, item) {
    await this.click('nav button', menu);
    await this.click('nav button', item);
  }
}

/// Plays a recorded game: a drag a line, and behind it the board. It is played by events of the
/// page's own, for a hand would take an hour.
async function replay(lines) {
  document.querySelector('#view').setPointerCapture = () => {};
  const told = [];
  for (const line of lines) {
    const squares = line.split(' | ')[0].split(' ').map(Number);
    point('pointermove', squares[0]);
    point('pointerdown', squares[0], {buttons: 1});
    for (const square of squares) point('pointermove', square, {buttons: 1});
    point('pointerup', squares.at(-1));
    settle();
    told.push(`${squares.join(' ')} | ${board()}`);
  }
  return [...told, document.querySelector('dialog section').textContent];
}

/// The recorded games: the second of the day that seeds one, then its turns and its end. The number
/// of draws behind each turn is left out: one too many shows in the boards that follow.
function recordedGames() {
  return readFileSync('tests/data/games.txt', 'utf8').trim().split(/^game /m).slice(1)
      .map(game => game.trim().split('\n').map(line => line.replace(/ \| \d+$/, '')));
}

let browser;
before(async () => {
  await once(server.listen(0, '127.0.0.1'), 'listening');
  browser = await launch(browserName);
});
after(async () => {
  server.close();
  await browser.close();
});
const check = (what, steps) => test(`${browserName}: ${what}`, {timeout: 60000}, steps);

check('a turn in real time from disk, and Exit', async () => {
  const page = await browser.newPage();
  await page.goto(pathToFileURL(file).href);
  await page.evaluate(`(${prepare})(null)`);
  const hand = Object.assign(new Hand(), {page});
  await hand.has(() => document.querySelector('#view text')?.textContent == 'Velmoran');
  await hand.has(() => isBoxOpen());
  await hand.closeBox();
  await hand.drag(9, 13);
  assert.equal(await hand.board(), Moved);
  await hand.has(() => all('#news')[0].innerText.includes('green'));
  await hand.shortcut('x');
  assert.equal(await hand.sentence(), 'The game is closed.');
  await hand.close();
});
// WebKit's driver does not hide a page, touches nothing, and takes its window as it is.
if (browserName != 'webkit') {
  check('a hidden page plays its turn to the end, with one request and nothing kept', async () => {
    requests.length = 0;
    const hand = await Hand.open(browser, {seconds: null});
    await hand.has(() => isBoxOpen());
    await hand.closeBox('Escape');
    await hand.drag(9, 13);
    const other = await browser.newPage();
    await other.bringToFront();
    await hand.has(() => document.hidden);
    await hand.has(() => all('#news')[0].innerText.includes('green'));
    await other.close();
    assert.equal(requests.length, 1);
    assert.deepEqual(await hand.page.evaluate(async () => [
      document.cookie, localStorage.length, sessionStorage.length,
      (await indexedDB.databases()).length,
    ]), ['', 0, 0, 0]);
    await hand.close();
  });

  check('fingers on a phone', async () => {
    const view = {width: 360, height: 640, deviceScaleFactor: 3, hasTouch: true, isMobile: true};
    const hand = await Hand.openBoard(browser, {view});
    const {touchscreen} = hand.page;
    const finger = await touchscreen.touchStart(...await hand.at(9));
    await finger.move(...await hand.at(13));
    assert.equal(await hand.outline(), 2);
    await finger.end();
    assert.equal(await hand.board(), Moved);
    assert.deepEqual(await hand.page.evaluate(() => [
      all('#view')[0].getBoundingClientRect().width, document.documentElement.scrollWidth,
      scrollX, scrollY, devicePixelRatio, visualViewport.scale, getSelection().toString(),
    ]), [360, 360, 0, 0, 3, 1, '']);
    await hand.shortcut('a');
    await touchscreen.tap(...await hand.at('dialog button'));
    await hand.has(() => velmoran.awaited == 'input');
    const isCoarse = await hand.page.evaluate(() => matchMedia('(pointer: coarse)').matches);
    assert(isCoarse || browserName != 'chrome');
    for (const [width, height, board] of [[280, 400, 280], [640, 300, 256], [820, 1180, 820]]) {
      await hand.page.setViewport({...view, width, height});
      await hand.has(`innerWidth == ${width}`);
      await touchscreen.tap(...await hand.at('nav button', 'Help'));
      await touchscreen.tap(...await hand.at('nav button', 'Official'));
      const heights = await hand.page.evaluate(() => all('#view, nav button, [role=menu]', part => {
        const {left, top, right, bottom} = part.getBoundingClientRect();
        const isInside = left >= 0 && top >= 0 && right <= innerWidth && bottom < innerHeight + .1;
        return isInside && bottom - top;
      }).filter(height => height !== 0));
      assert.equal(heights.length, 11, `two menus, open on ${width} by ${height}`);
      assert(heights.every(height => height && (height >= 44 || !isCoarse)), String(heights));
      if (isCoarse) assert.equal(Math.round(heights.at(-1)), board);
      await touchscreen.tap(...await hand.at('nav button', 'Help'));
    }
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
}

check('what the page says of itself', async () => {
  const hand = await Hand.openBoard(browser);
  assert.match(html, /content="default-src 'none';(?!.*unsafe-inline)/);
  assert.deepEqual(await hand.page.evaluate(async () => {
    const icon = new Image();
    [icon.src] = all('[rel=apple-touch-icon]', link => link.href);
    await icon.decode();
    const order = all('#view')[0].getAttribute('aria-owns').trim().split(' ');
    const names = order.map(id => document.getElementById(id).ariaLabel).filter(Boolean);
    return [document.title, all('#view')[0].ariaLabel, icon.naturalWidth, names.length, names[8],
      all('[rel=icon]', link => link.href.split(',')[0]), all('meta[name=description]').length];
  }), ['Velmoran', 'Velmoran', 192, 32, 'blue man on square 9', ['data:image/svg+xml'], 1]);
  await hand.close();
});

check('every end of a drag', async () => {
  const hand = await Hand.openBoard(browser);
  const {page} = hand;
  const ends = {
    escape: () => hand.keys('Escape'),
    // WebKit's driver would never let go of it.
    'second button': () => browserName != 'webkit' ? page.mouse.down({button: 'right'}) :
      page.evaluate(() => point('pointermove', 13, {buttons: 3})),
    'menu by the keys': () => page.evaluate(() => {
      document.querySelector('nav button').dispatchEvent(
          new KeyboardEvent('keydown', {key: 'ArrowDown', bubbles: true}));
    }),
    'another window': () => page.evaluate(() => { dispatchEvent(new Event('blur')); }),
    'hidden page': () => page.evaluate(() => {
      Object.defineProperty(document, 'hidden', {value: true, configurable: true});
      document.dispatchEvent(new Event('visibilitychange'));
      delete document.hidden;
    }),
    'lost pointer': () => page.evaluate(() => {
      document.querySelector('#view').dispatchEvent(new PointerEvent('lostpointercapture'));
    }),
    'release that the page never saw': () => page.evaluate(() => point('pointermove', 13)),
    box: () => hand.shortcut('a'),
  };
  for (const [end, act] of Object.entries(ends)) {
    await hand.press(9);
    await hand.move(13);
    assert.equal(await hand.outline(), 2, end);
    await act();
    assert.equal(await hand.outline(), 0, end);
    if (end == 'box') await hand.closeBox();
    await page.mouse.up();
    if (end == 'second button') await page.mouse.up({button: 'right'});
    assert.equal(await hand.board(), Start, end);
  }
  await page.evaluate(() => {
    for (const type of ['pointerdown', 'pointermove']) {
      point(type, 9, {isPrimary: false, buttons: 1});
    }
  });
  assert.equal(await hand.outline(), 0, 'a second finger plays no part');
  await hand.press(9);
  await hand.move(13);
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
  assert.deepEqual(await hand.page.evaluate(() => all('dialog g', group =>
      getComputedStyle(group).display)), ['none', 'none', 'inline'], 'the icon');
  await hand.judge('box');
  await hand.page.mouse.click(...await hand.at(30));
  await hand.closeBox();
  assert.deepEqual([await hand.title(), await hand.focus()], ['', 'board']);
  await hand.shortcut('a');
  await hand.click('dialog button');
  await hand.has(() => velmoran.awaited == 'input');
  await hand.shortcut('a', 'Meta');
  await hand.page.keyboard.down('Enter');
  await hand.has(() => velmoran.awaited == 'input');
  await hand.shortcut('c');
  await hand.page.keyboard.down('Enter');
  assert.equal(await hand.title(), 'Velmoran Game Controls', 'a held Enter closes one box');
  await hand.page.keyboard.up('Enter');
  await hand.closeBox();
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

check('menus', async () => {
  const hand = await Hand.openBoard(browser);
  const focusAfter = async (...keys) => {
    await hand.keys(...keys);
    return hand.focus();
  };
  const stops = await hand.page.evaluate(() =>
    all('nav [tabindex="0"]', item => item.textContent));
  assert.deepEqual(stops, ['File'], 'one stop of Tab');
  await hand.page.evaluate(() => document.querySelector('nav button').focus());
  assert.equal(await focusAfter('ArrowDown'), 'New Game');
  assert.equal(await focusAfter('ArrowDown', 'ArrowDown'), 'New Game');
  assert.equal(await focusAfter('ArrowLeft', 'ArrowUp'), 'Official Rules of Velmoran');
  assert.equal(await focusAfter('ArrowRight'), 'Part 1');
  assert.equal(await focusAfter('ArrowLeft'), 'Official Rules of Velmoran');
  assert.equal(await focusAfter('r'), 'Part 1');
  assert.equal(await focusAfter('Escape'), 'Official Rules of Velmoran');
  await hand.keys('r', '3');
  assert.equal(await hand.title(), 'Rules of Velmoran (Part 3)');
  await hand.closeBox('Escape');
  await hand.page.evaluate(() => document.querySelector('nav button').focus());
  assert.equal(await focusAfter('Enter'), 'New Game');
  assert.equal(await focusAfter('Escape', 'Escape'), 'board');
  const shown = () => hand.page.evaluate(() =>
      all('nav button').filter(item => item.offsetParent).map(item => item.firstChild.textContent));
  await hand.click('nav button', 'File');
  assert.deepEqual(await shown(), ['File', 'New Game', 'Exit', 'Help']);
  await hand.move('nav button', 'Help');
  await hand.move('nav button', 'Official');
  assert.deepEqual(await shown(), ['File', 'Help', 'Game Controls', 'About This Program',
    'Official Rules of Velmoran', 'Part 1', 'Part 2', 'Part 3']);
  await hand.judge('menu');
  await hand.click('nav button', 'Help');
  assert.deepEqual(await shown(), ['File', 'Help']);
  await hand.page.evaluate(() => {
    document.dispatchEvent(
        new KeyboardEvent('keydown', {key: '\u0441', code: 'KeyC', ctrlKey: true}));  // Cyrillic
  });
  assert.equal(await hand.title(), 'Velmoran Game Controls');
  await hand.closeBox();
  await hand.shortcut('x');
  assert.equal(await hand.sentence(), 'The game is closed.');
  await hand.keys('Enter');
  await hand.has(() => document.querySelector('#view text')?.textContent == 'Velmoran');
  await hand.close();
});

check('a box on a small screen', async () => {
  const hand = await Hand.openBoard(browser);
  await hand.shortcut('c');
  for (const width of [700, 600, 545, 500]) {
    await hand.page.setViewport({width, height: 600});
    await hand.has(`innerWidth == ${width}`);
    await hand.page.evaluate(() => new Promise(requestAnimationFrame));
    const [areAsByHand, areJoined, text] = await hand.page.evaluate(() => [
      all('dialog p').every(paragraph => {
        const range = document.createRange();
        range.selectNodeContents(paragraph);
        const rows = new Set([...range.getClientRects()].map(({bottom}) => Math.round(bottom)));
        return rows.size == paragraph.querySelectorAll('br').length + 1;
      }),
      all('dialog br').every(({offsetParent}) => !offsetParent),
      all('dialog p')[0].innerText,
    ]);
    assert(width == 700 ? areAsByHand : areAsByHand || areJoined, `lines, ${width} wide`);
    assert.match(text, /\.  To move, \n?drag/, `blanks, ${width} wide`);
  }
  await hand.page.setViewport({width: 640, height: 300});
  await hand.has('innerHeight == 300');
  assert.deepEqual(await hand.page.evaluate(() => {
    const [view, title, text, button] = ['#view', 'dialog h1', 'dialog p', 'dialog button'].map(
        part => all(part)[0].getBoundingClientRect());
    return [title.top > 0, text.top >= title.bottom, button.bottom < innerHeight,
      view.bottom < innerHeight + .1];
  }), [true, true, true, true], 'title, text, button and board in sight');
  await hand.keys('PageDown');
  await hand.has(() => all('dialog')[0].scrollTop > 0);
  await hand.closeBox();
  await hand.close();
});

check('what comes from elsewhere changes nothing', async () => {
  const hand = await Hand.openBoard(browser);
  await hand.page.evaluate(() => {
    dispatchEvent(new ErrorEvent('error', {message: 'foreign', error: new Error('foreign')}));
    document.dispatchEvent(new Event('keydown'));
    point('pointerdown', 9, {pointerId: 4711, buttons: 1});
  });
  await hand.drag(9, 13);
  await hand.settle();
  assert.match(await hand.board(), /g.* b\.\.\. \.bbb bbbb bbbb$/);
  await hand.shortcut('a');
  const body = await hand.page.evaluate(() => document.documentElement.outerHTML);
  await hand.close(await hand.page.evaluate(() => complaints));
  const saved = await Hand.open(browser, {body: '<!DOCTYPE html>' + body});
  await saved.has(() => clock.tick !== null);
  await saved.judge('splash');
  assert.equal(await saved.title(), '');
  assert.equal(await saved.page.evaluate(() => all('#news')[0].innerText), '');
  await saved.settle();
  await saved.closeBox();
  await saved.settle();
  await saved.drag(9, 13);
  assert.equal(await saved.board(), Moved);
  await saved.judge('board');
  await saved.close();
});

check('a page that cannot go on says so', async () => {
  assert(html.indexOf('id="program"') < html.indexOf('<main'), 'nothing is said while it comes');
  const old = await Hand.open(browser, {change: () => { delete window.DecompressionStream; }});
  await old.has(() => all('main')[0].innerText);
  assert.match(await old.sentence(), /new enough/);
  await old.close();
  const forbidden = await Hand.open(browser, {body: html.replace("'wasm-unsafe-eval'", '')});
  await forbidden.has(() => complaints.length);
  assert.match(await forbidden.sentence(), /WebAssembly.* forbids/);
  await forbidden.close(await forbidden.page.evaluate(() => complaints));
  const hand = await Hand.openBoard(browser);
  await hand.page.evaluate(() => {
    document.querySelector('nav [value]').value = 99;
    document.querySelector('nav [value]').click();
  });
  assert.match(await hand.sentence(), /stopped/);
  await hand.page.mouse.click(300, 300);
  const complaints = await hand.page.evaluate(() => complaints);
  assert.equal(complaints.length, 1);
  await hand.close(complaints);
});

check('whole games as on the virtual host', async () => {
  const games = recordedGames();
  assert.equal(games.length, 6);
  for (const [second, ...lines] of games) {
    const hand = await Hand.openBoard(browser, {seconds: Number(second)});
    assert.deepEqual(await hand.page.evaluate(replay, lines.slice(0, -1)), lines);
    assert.equal(await hand.page.evaluate(() => all('#news p').length), 20);
    await hand.close();
  }
});

// Of the three only this one tells the driver its tree.
if (browserName == 'chrome') check('what is read out', async () => {
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
  for (const name of [
    'menubar', 'menuitem File', 'menuitem Help', 'log', 'image blue man on square 9',
  ]) {
    assert.equal(first.filter(other => other == name).length, 1, name);
  }
  assert.equal(first.filter(name => / square \d+$/.test(name)).length, 32);
  await hand.drag(9, 13);
  await hand.settle();
  const after = await named();
  const changed = after.filter(name => /^image /.test(name) && !first.includes(name));
  const told = await hand.page.evaluate(() => all('#news p', line => line.textContent).join(', '));
  assert.equal(changed.length, 4);
  assert.deepEqual(told.split(', ').sort(), changed.map(name => name.slice(6)).sort());
  await hand.shortcut('a');
  const asked = await named();
  assert(asked.includes('dialog About Velmoran') && asked.includes('button OK'));
  await hand.close();
});
