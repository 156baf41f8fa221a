// Plays on the page as a person does: page_test.mjs BROWSER. BUILD is the build folder.
import assert from 'node:assert/strict';
import {once} from 'node:events';
import {readFileSync} from 'node:fs';
import {createServer} from 'node:http';
import {after, before, test} from 'node:test';
import {pathToFileURL} from 'node:url';
import {fetched, folder, launch} from './browsers.mjs';

const browserName = process.argv[2];
const Start = 'gggg gggg gggg .... .... bbbb bbbb bbbb';
const Moved = 'gggg gggg gggg .... b... .bbb bbbb bbbb'; // from 9 to 13
const Desk = {width: 800, height: 700};
const rest = milliseconds => new Promise(done => setTimeout(done, milliseconds));
const file = `${folder}/velmoran.html`,
  html = readFileSync(file, 'utf8');
const axe = readFileSync(fetched.resolve('axe-core/axe.min.js'), 'utf8');

/// Runs in the page before its own scripts: helpers of the tests, a list of errors, and a clock
/// that stands still until `tick`. `seconds` is its time of day; with null the real clock runs.
function prepare(seconds) {
  window.all = (selector, read = element => element) =>
    [...document.querySelectorAll(selector)].map(read);
  window.board = () => {
    const rows = [];
    for (let row = 7; row >= 0; --row) {
      rows.push(
        [1, 2, 3, 4]
          .map(column => {
            const [{ariaLabel: label}] = all(`[aria-label$=" square ${4 * row + column}"]`);
            const mark = label.startsWith('free') ? '.' : label[0];
            return label.includes('king') ? mark.toUpperCase() : mark;
          })
          .join(''),
      );
    }
    return rows.join(' ');
  };
  window.middleOf = square => {
    const {x, y, width, height} = all('#view')[0].getBoundingClientRect();
    const row = Math.floor((square - 1) / 4),
      column = 2 * ((square - 1) % 4) + (row % 2);
    return [x + ((column + 0.5) * width) / 8, y + ((7.5 - row) * height) / 8];
  };
  window.point = (type, square, options) => {
    const [clientX, clientY] = middleOf(square);
    const place = {isPrimary: true, pointerId: window.pointer, clientX, clientY};
    all('#view')[0].dispatchEvent(new PointerEvent(type, {...place, ...options}));
  };
  window.complaints = [];
  const complain = what => {
    complaints.push(String(what));
  };
  addEventListener('securitypolicyviolation', event => complain(event.violatedDirective));
  addEventListener('error', event => complain(event.message));
  addEventListener('unhandledrejection', event => complain(event.reason));
  addEventListener('contextmenu', event => event.defaultPrevented || complain('a context menu'));
  addEventListener(
    'pointerdown',
    event => {
      window.pointer = event.pointerId;
    },
    true,
  );
  console.error = complain;
  if (seconds === null) return;
  window.clock = {now: 0, tick: null};
  performance.now = () => clock.now;
  const {setTimeout, clearTimeout} = window;
  const Alarm = -1;
  window.setTimeout = (call, delay) => {
    if (call.name != 'goOn') return setTimeout(call, delay); // one of the driver's timers
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
  window.settle = () => {
    while (clock.tick && velmoran.awaited != 'box') clock.tick();
  };
  // The hour is always 1 and the minutes make up for it: both must count.
  Date.prototype.getHours = () => 1;
  Date.prototype.getMinutes = () => Math.floor(seconds / 60) - 60;
  Date.prototype.getSeconds = () => seconds % 60;
  Date.prototype.getMilliseconds = () => 0;
}

// Serves the page with `prepare` before its policy. The page itself is unchanged.
const bodies = new Map();
const requests = [];
const server = createServer((request, answer) => {
  requests.push(request.url);
  answer.setHeader('Content-Type', 'text/html').end(bodies.get(request.url));
});

/// A page in a browser, and a hand that plays it with real input.
class Hand {
  static async open(browser, {view = Desk, seconds = 1, body = html, change = ''} = {}) {
    const hand = new Hand();
    hand.page = await browser.newPage();
    await hand.page.setViewport(view);
    await hand.page.bringToFront();
    // Otherwise the browser treats every page as the one in front.
    if (browserName == 'chrome') await hand.page.emulateFocusedPage(false);
    const url = `/${bodies.size}`;
    bodies.set(
      url,
      body.replace(
        '<head>',
        `<head><script>(${prepare})(${seconds}); (${change || (() => {})})()</script>`,
      ),
    );
    await hand.page.goto(`http://127.0.0.1:${server.address().port}${url}`);
    return hand;
  }

  /// Opens the page and closes the first box. The game waits for blue.
  static async openBoard(browser, options) {
    const hand = await Hand.open(browser, options);
    await hand.has(() => clock.tick !== null);
    await hand.settle();
    await hand.closeBox();
    await hand.settle();
    return hand;
  }

  async close(complaints = []) {
    assert.deepEqual(await this.ask(() => complaints), complaints);
    await this.page.close();
  }

  /// The box closes at once. The game goes on with the close event, which comes later.
  async closeBox(key = 'Enter') {
    await this.keys(key);
    await this.has(() => velmoran.awaited == 'input');
  }

  async has(condition) {
    // While a page unloads it gives no answer.
    for (let tries = 500; !(await this.ask(condition).catch(() => false)); --tries) {
      assert(tries, `never came: ${condition}`);
      await rest(20);
    }
  }
  ask(...question) {
    return this.page.evaluate(...question);
  }
  board() {
    return this.ask(() => board());
  }
  settle() {
    return this.ask(() => settle());
  }
  tick(times) {
    return this.ask(count => {
      while (count--) clock.tick();
    }, times);
  }
  outline() {
    return this.ask(() => all('#view > g:last-child > *').length);
  }
  focus() {
    return this.ask(() => document.activeElement.firstChild.textContent || 'board');
  }
  /// Fails if axe-core has a serious finding.
  async judge(what) {
    await this.ask(`(() => {${axe}})()`);
    assert.deepEqual(
      await this.ask(async () =>
        (await axe.run()).violations
          .filter(({impact}) => impact == 'serious' || impact == 'critical')
          .map(({help, nodes}) => [help, ...nodes.map(node => node.html)]),
      ),
      [],
      what,
    );
  }
  title() {
    return this.ask(() => all('dialog[open] h1', title => title.innerText).join());
  }
  /// The icons of a box: Stop, Warning, Information.
  icons() {
    return this.ask(() => all('dialog g', icon => getComputedStyle(icon).display).join());
  }
  sentence() {
    return this.ask(() => all('main')[0].innerText.split('\n')[0]);
  }

  /// The middle of a square, or of the first element that a selector names and that has this text.
  at(what, text = '') {
    return this.ask(
      (what, text) => {
        if (Number(what)) return middleOf(what);
        const {x, y, width, height} = all(what)
          .find(element => element.innerText.startsWith(text))
          .getBoundingClientRect();
        return [x + width / 2, y + height / 2];
      },
      what,
      text,
    );
  }
  async click(...place) {
    await this.page.mouse.click(...(await this.at(...place)));
  }
  async move(...place) {
    await this.page.mouse.move(...(await this.at(...place)));
  }
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

/// Plays a recorded game, one drag per line. It dispatches events itself: real input would take an
/// hour.
async function replay(lines) {
  all('#view')[0].setPointerCapture = () => {};
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
  return [...told, all('dialog section')[0].textContent];
}

/// The recorded games: the second of the day that seeds each, its turns and its end. The number of
/// draws is left out: one draw more shows in the boards that follow.
function recordedGames() {
  return readFileSync('tests/data/games.txt', 'utf8')
    .trim()
    .split(/^game /m)
    .slice(1)
    .map(game =>
      game
        .trim()
        .split('\n')
        .map(line => line.replace(/ \| \d+$/, '')),
    );
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

check('a turn in real time from disk, at last hidden, and Exit', async () => {
  const page = await browser.newPage();
  await page.goto(pathToFileURL(file).href);
  const hand = Object.assign(new Hand(), {page});
  await hand.ask(`(${prepare})(null)`);
  await hand.has(() => all('#view text', text => text.textContent).includes('Velmoran'));
  await hand.has(() => velmoran.awaited == 'box');
  await hand.closeBox('Escape');
  await hand.drag(9, 13);
  assert.equal(await hand.board(), Moved);
  // WebKit's driver does not hide a page.
  const other = browserName != 'webkit' && (await browser.newPage());
  if (other) {
    await other.bringToFront();
    await hand.has(() => document.hidden);
  }
  await hand.has(() => all('#news')[0].innerText.includes('green'));
  if (other) await other.close();
  await hand.shortcut('x');
  assert.equal(await hand.sentence(), 'The game is closed.');
  await hand.close();
});

// WebKit's driver has no touch and no scale.
if (browserName != 'webkit') {
  check('fingers on a phone', async () => {
    const view = {width: 360, height: 640, deviceScaleFactor: 3, hasTouch: true, isMobile: true};
    const hand = await Hand.openBoard(browser, {view});
    const {touchscreen} = hand.page;
    const finger = await touchscreen.touchStart(...(await hand.at(9)));
    await finger.move(...(await hand.at(13)));
    assert.equal(await hand.outline(), 2);
    await finger.end();
    assert.equal(await hand.board(), Moved);
    assert.deepEqual(
      await hand.ask(() => [
        all('#view')[0].getBoundingClientRect().width,
        document.documentElement.scrollWidth,
        scrollX,
        scrollY,
        devicePixelRatio,
        visualViewport.scale,
        getSelection().toString(),
      ]),
      [360, 360, 0, 0, 3, 1, ''],
    );
    await hand.shortcut('a');
    await touchscreen.tap(...(await hand.at('dialog button')));
    await hand.has(() => velmoran.awaited == 'input');
    const tapMenu = async (caption, open) => {
      await touchscreen.tap(...(await hand.at('nav button', caption)));
      await hand.has(`all('nav [aria-expanded=true]').length == ${open}`);
    };
    const isCoarse = await hand.ask(() => matchMedia('(pointer: coarse)').matches);
    assert(isCoarse || browserName != 'chrome');
    for (const [width, height, board] of [
      [280, 400, 280],
      [640, 300, 256],
      [820, 1180, 820],
    ]) {
      await hand.page.setViewport({...view, width, height});
      await hand.has(`innerWidth == ${width}`);
      await tapMenu('Help', 1);
      await tapMenu('Official', 2);
      const heights = await hand.ask(() =>
        all('#view, nav button, [role=menu]', part => {
          const {left, top, right, bottom} = part.getBoundingClientRect();
          const isInside =
            left >= 0 && top >= 0 && right <= innerWidth && bottom < innerHeight + 0.1;
          return isInside && bottom - top;
        }).filter(height => height !== 0),
      );
      assert.equal(heights.length, 11, `two menus, open on ${width} by ${height}`);
      assert(
        heights.every(height => height && (height >= 44 || !isCoarse)),
        String(heights),
      );
      if (isCoarse) assert.equal(Math.round(heights.at(-1)), board);
      await tapMenu('Help', 0);
    }
    await hand.close();
  });

  check('sharp at every ratio', async () => {
    for (const ratio of [1, 1.25, 1.5, 2]) {
      const hand = await Hand.openBoard(browser, {view: {...Desk, deviceScaleFactor: ratio}});
      const shot = await (await hand.page.$('#view')).screenshot({encoding: 'base64'});
      const colours = await hand.ask(async data => {
        const image = new Image();
        image.src = 'data:image/png;base64,' + data;
        await image.decode();
        const canvas = new OffscreenCanvas(image.width, image.height).getContext('2d');
        canvas.drawImage(image, 0, 0);
        // Near the upper edge of the squares, where no disc is.
        const row = canvas.getImageData(4, 2, image.width - 8, 1).data;
        return [...new Set(new Uint32Array(row.buffer))];
      }, shot);
      assert.equal(colours.length, 2, `at ${ratio}`);
      await hand.close();
    }
  });
}

check('what the page says of itself, asks for and keeps', async () => {
  assert.match(html, /content="default-src 'none';(?!.*unsafe-inline)/);
  requests.length = 0;
  const hand = await Hand.openBoard(browser);
  assert.deepEqual(
    await hand.ask(async () => {
      const icon = new Image();
      [icon.src] = all('[rel=apple-touch-icon]', link => link.href);
      await icon.decode();
      return [
        document.title,
        all('#view')[0].ariaLabel,
        icon.naturalWidth,
        all('[rel=icon]', link => link.href.split(',')[0]),
        all('meta[name=description]').length,
        document.cookie,
        localStorage.length,
        sessionStorage.length,
        await indexedDB.databases(),
      ];
    }),
    ['Velmoran', 'Velmoran', 192, ['data:image/svg+xml'], 1, '', 0, 0, []],
  );
  const readOut = () =>
    hand.ask(() =>
      all('#view')[0]
        .getAttribute('aria-owns')
        .trim()
        .split(' ')
        .map(id => document.getElementById(id).ariaLabel)
        .filter(Boolean),
    );
  const before = await readOut();
  assert.deepEqual([before.length, before[8]], [32, 'blue man on square 9']);
  await hand.drag(9, 13);
  await hand.settle();
  const changed = (await readOut()).filter(label => !before.includes(label));
  const told = await hand.ask(() => all('#news p', line => line.textContent).join(', '));
  assert.deepEqual([changed.length, told.split(', ').sort()], [4, changed.sort()]);
  assert.equal(requests.length, 1);
  await hand.close();
});

check('every end of a drag', async () => {
  const hand = await Hand.openBoard(browser);
  const {page} = hand;
  const ends = {
    escape: () => hand.keys('Escape'),
    // WebKit's driver would never release it.
    'second button': () =>
      browserName != 'webkit'
        ? page.mouse.down({button: 'right'})
        : hand.ask(() => point('pointermove', 13, {buttons: 3})),
    'menu by the keys': () =>
      hand.ask(() => {
        const down = new KeyboardEvent('keydown', {key: 'ArrowDown', bubbles: true});
        all('nav button')[0].dispatchEvent(down);
      }),
    'another window': () =>
      hand.ask(() => {
        dispatchEvent(new Event('blur'));
      }),
    'hidden page': () =>
      hand.ask(() => {
        Object.defineProperty(document, 'hidden', {value: true, configurable: true});
        document.dispatchEvent(new Event('visibilitychange'));
        delete document.hidden;
      }),
    'lost pointer': () => hand.ask(() => point('lostpointercapture', 13)),
    'release that the page never saw': () => hand.ask(() => point('pointermove', 13)),
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
  await hand.ask(() => {
    const second = {isPrimary: false, buttons: 1};
    for (const type of ['pointerdown', 'pointermove']) point(type, 9, second);
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
  assert.equal(await hand.ask(() => clock.tick), null, 'timers are held');
  assert.equal(await hand.icons(), 'none,none,inline');
  await hand.judge('box');
  await hand.page.mouse.click(...(await hand.at(30)));
  await hand.closeBox();
  assert.deepEqual([await hand.title(), await hand.focus()], ['', 'board']);
  await hand.shortcut('a');
  await hand.click('dialog button');
  await hand.has(() => velmoran.awaited == 'input');
  await hand.shortcut('a', 'Meta');
  assert.equal(await hand.title(), 'About Velmoran');
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
  await hand.close();
});

check('menus', async () => {
  const hand = await Hand.openBoard(browser);
  assert.deepEqual(await hand.ask(() => all('nav [tabindex="0"]').length), 1, 'stops of Tab');
  await hand.ask(() => {
    all('nav button')[0].focus();
  });
  for (const [keys, focus] of [
    ['Enter', 'New Game'],
    ['Escape Escape', 'board'],
    ['Control', 'board'],
    ['Tab ArrowDown', 'New Game'],
    ['ArrowDown ArrowDown', 'New Game'],
    ['ArrowLeft ArrowUp', 'Official Rules of Velmoran'],
    ['ArrowRight', 'Part 1'],
    ['ArrowLeft', 'Official Rules of Velmoran'],
    ['r', 'Part 1'],
    ['Escape', 'Official Rules of Velmoran'],
  ]) {
    await hand.keys(...keys.split(' '));
    assert.equal(await hand.focus(), focus, keys);
  }
  await hand.keys('r', '3');
  assert.equal(await hand.title(), 'Rules of Velmoran (Part 3)');
  await hand.closeBox('Escape');
  const shown = () =>
    hand.ask(() =>
      all('nav button')
        .filter(item => item.offsetParent)
        .map(item => item.firstChild.textContent),
    );
  await hand.click('nav button', 'File');
  assert.deepEqual(await shown(), ['File', 'New Game', 'Exit', 'Help']);
  await hand.move('nav button', 'Help');
  await hand.move('nav button', 'Official');
  assert.deepEqual(await shown(), [
    'File',
    'Help',
    'Game Controls',
    'About This Program',
    'Official Rules of Velmoran',
    'Part 1',
    'Part 2',
    'Part 3',
  ]);
  await hand.judge('menu');
  if (browserName == 'chrome') {
    const tools = await hand.page.createCDPSession();
    const features = [{name: 'forced-colors', value: 'active'}];
    await tools.send('Emulation.setEmulatedMedia', {features});
    const {length} = await (await hand.page.$('nav button:focus')).screenshot();
    assert(length > 1000, 'the chosen entry in forced colours is more than a bar');
  }
  await hand.click('nav button', 'Help');
  assert.deepEqual(await shown(), ['File', 'Help']);
  await hand.ask(() => {
    const cyrillic = {key: '\u0441', code: 'KeyC', ctrlKey: true};
    document.dispatchEvent(new KeyboardEvent('keydown', cyrillic));
  });
  assert.equal(await hand.title(), 'Velmoran Game Controls');
  await hand.closeBox();
  await hand.shortcut('x');
  assert.equal(await hand.sentence(), 'The game is closed.');
  await hand.keys('Enter');
  await hand.has(() => velmoran.awaited == 'input');
  await hand.close();
});

check('a box on a small screen', async () => {
  const hand = await Hand.openBoard(browser);
  await hand.shortcut('c');
  for (const width of [700, 600, 545, 500]) {
    await hand.page.setViewport({width, height: 600});
    await hand.has(`innerWidth == ${width}`);
    await hand.ask(() => new Promise(requestAnimationFrame));
    const [rows, isJoined, text] = await hand.ask(() => {
      const [text] = all('dialog section'),
        range = document.createRange();
      range.selectNodeContents(text);
      const bottoms = [...range.getClientRects()].map(({bottom}) => Math.round(bottom));
      return [new Set(bottoms).size, !all('dialog br')[0].offsetParent, text.innerText];
    });
    assert(width == 700 ? rows == 11 : rows == 11 || isJoined, `${rows} lines, ${width} wide`);
    assert.match(text, /\. {2}To move, \n?drag/, `blanks, ${width} wide`);
  }
  await hand.page.setViewport({width: 640, height: 300});
  await hand.has('innerHeight == 300');
  assert.deepEqual(
    await hand.ask(() => {
      const [view, title, text, button] = ['#view', 'dialog h1', 'dialog p', 'dialog button'].map(
        part => all(part)[0].getBoundingClientRect(),
      );
      return [
        title.top > 0,
        text.top >= title.bottom,
        button.bottom < innerHeight,
        view.bottom < innerHeight + 0.1,
      ];
    }),
    [true, true, true, true],
    'title, text, button and board in sight',
  );
  await hand.keys('PageDown');
  await hand.has(() => all('dialog')[0].scrollTop > 0);
  await hand.closeBox();
  await hand.close();
});

check('what comes from elsewhere changes nothing', async () => {
  const hand = await Hand.openBoard(browser);
  await hand.ask(() => {
    dispatchEvent(new ErrorEvent('error', {message: 'foreign', error: new Error('foreign')}));
    document.dispatchEvent(new Event('keydown'));
    point('pointerdown', 9, {pointerId: 4711, buttons: 1});
  });
  await hand.drag(9, 13);
  await hand.settle();
  assert.match(await hand.board(), /g.* b\.\.\. \.bbb bbbb bbbb$/);
  await hand.shortcut('a');
  const body = await hand.ask(() => document.documentElement.outerHTML);
  await hand.close(await hand.ask(() => complaints));
  const saved = await Hand.open(browser, {body: '<!DOCTYPE html>' + body});
  await saved.has(() => clock.tick !== null);
  await saved.judge('splash');
  assert.equal(await saved.title(), '');
  assert.equal(await saved.ask(() => all('#news')[0].innerText), '');
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
  const old = await Hand.open(browser, {
    change: () => {
      delete window.DecompressionStream;
    },
  });
  await old.has(() => all('main')[0].innerText);
  assert.match(await old.sentence(), /new enough/);
  await old.close();
  const forbidden = await Hand.open(browser, {body: html.replace("'wasm-unsafe-eval'", '')});
  await forbidden.has(() => complaints.length);
  assert.match(await forbidden.sentence(), /WebAssembly.* forbids/);
  await forbidden.close(await forbidden.ask(() => complaints));
  const hand = await Hand.openBoard(browser);
  await hand.ask(() => {
    const [item] = all('nav [value]');
    item.value = 99;
    item.click();
  });
  assert.match(await hand.sentence(), /stopped/);
  await hand.page.mouse.click(300, 300);
  const complaints = await hand.ask(() => complaints);
  assert.equal(complaints.length, 1);
  await hand.close(complaints);
});

check('whole games as on the virtual host', async () => {
  const games = recordedGames();
  assert.equal(games.length, 6);
  for (const [second, ...lines] of games) {
    const hand = await Hand.openBoard(browser, {seconds: Number(second)});
    assert.deepEqual(await hand.ask(replay, lines.slice(0, -1)), lines);
    assert.equal(await hand.ask(() => all('#news p').length), 20);
    assert.equal(await hand.icons(), 'inline,none,none');
    await hand.close();
  }
});
