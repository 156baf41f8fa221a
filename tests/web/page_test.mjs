// Plays on the page as a person does: page_test.mjs BROWSER. BUILD is the build folder.
import assert from 'node:assert/strict';
import {once} from 'node:events';
import {readFileSync} from 'node:fs';
import {createServer} from 'node:http';
import {after, test} from 'node:test';
import {setTimeout as rest} from 'node:timers/promises';
import {pathToFileURL} from 'node:url';
import {fetched, folder, launch} from './browsers.mjs';

const browserName = process.argv[2];
const isWebKit = browserName == 'webkit';
const Start = 'gggg gggg gggg .... .... bbbb bbbb bbbb';
const Moved = 'gggg gggg gggg .... b... .bbb bbbb bbbb'; // from 9 to 13
const Answered = /g.* b\.\.\. \.bbb bbbb bbbb$/; // and green has moved
const Desk = {width: 800, height: 700, deviceScaleFactor: 1.25};
const Phone = {width: 360, height: 640, deviceScaleFactor: 3, hasTouch: true, isMobile: true};
const file = `${folder}/velmoran.html`,
  html = readFileSync(file, 'utf8');
const axe = readFileSync(fetched.resolve('axe-core/axe.min.js'), 'utf8');

/// Runs in the page before its own scripts: helpers of the tests, which use the names of these
/// scripts; a list of errors; and a clock that stands still until `due`, the game's timer, is
/// called. `seconds` is its time of day; with null the real clock runs.
function prepare(seconds) {
  window.all = (selector, read) => [...document.querySelectorAll(selector)].map(read ?? (e => e));
  window.readOut = () => {
    const order = view.getAttribute('aria-owns').trim().split(' ');
    return order.map(id => one('#' + id).ariaLabel).filter(words => words);
  };
  window.board = () => {
    const marks = readOut().map(words => {
      const mark = words.startsWith('free') ? '.' : words[0];
      return words.includes('king') ? mark.toUpperCase() : mark;
    });
    return marks.join('').match(/.{4}/g)?.reverse().join(' '); // none on the splash
  };
  window.outline = () => all('#view > g:last-child > *').length;
  window.focused = () => document.activeElement.firstChild.textContent || 'board';
  window.headline = () => box.open && one('#' + box.getAttribute('aria-labelledby')).innerText;
  window.sentence = () => main.innerText.split('\n')[0];
  // The icons of a box: Stop, Warning, Information.
  window.icons = () => all('dialog g', icon => getComputedStyle(icon).display).join();
  // Of a square, or of the first element that a selector names and that has this text.
  window.middleOf = (what, text = '') => {
    const found = all(Number(what) ? `[aria-label$=" square ${what}"]` : what);
    const {x, y, width, height} = found
      .find(element => element.textContent.startsWith(text))
      .getBoundingClientRect();
    return [x + width / 2, y + height / 2];
  };
  window.point = (type, square, options) => {
    const [clientX, clientY] = middleOf(square);
    const place = {isPrimary: true, pointerId: window.pointerId, clientX, clientY};
    view.dispatchEvent(new PointerEvent(type, {...place, ...options}));
  };
  window.onpointerdown = ({pointerId}) => Object.assign(window, {pointerId});
  window.key = (key, options) =>
    document.dispatchEvent(new KeyboardEvent('keydown', {key, ...options}));
  window.complaints = [];
  console.error = what => complaints.push(String(what));
  for (const type of ['error', 'unhandledrejection', 'securitypolicyviolation']) {
    addEventListener(type, event =>
      console.error(event.message ?? event.reason ?? event.violatedDirective),
    );
  }
  if (seconds === null) return;
  let now = 0;
  performance.now = () => now;
  const {setTimeout, clearTimeout} = window;
  window.due = null; // the other timers are the driver's; the game's has no id
  window.setTimeout = (call, delay) => {
    if (call.name != 'goOn') return setTimeout(call, delay);
    window.due = () => {
      now += delay;
      call();
    };
  };
  window.clearTimeout = id => {
    if (id) clearTimeout(id);
    else window.due = null;
  };
  window.settle = (ticks = 1000) => {
    while (ticks-- && due && awaited != 'box') due();
    return board();
  };
  // The hour is always 1 and the minutes make up for it: both must count.
  Date.prototype.getHours = () => 1;
  Date.prototype.getMinutes = () => -60;
  Date.prototype.getSeconds = () => seconds;
  Date.prototype.getMilliseconds = () => 0;
}

let page, served;
const server = createServer((_, answer) => answer.end(served)).listen(0, '127.0.0.1');
await once(server, 'listening');
const browser = await launch(browserName);
after(async () => {
  server.close();
  await browser.close();
});

/// Opens a page, with `prepare` before its policy. The rest of it is unchanged.
async function open({view = Desk, seconds = 1, body = html, change = ''} = {}) {
  page = await browser.newPage();
  await page.setViewport(view);
  served = body.replace('<head>', `<head><script>(${prepare})(${seconds}); ${change}</script>`);
  await page.goto(`http://127.0.0.1:${server.address().port}`);
}

/// Closes the first box. The game waits for blue.
async function begin() {
  await has("(settle(), awaited == 'box')");
  await closeBox();
  await ask('settle()');
}

async function close(expected = 0) {
  const complaints = await ask('complaints');
  assert.equal(complaints.length, expected, String(complaints));
  await page.close();
}

/// What a function gives in the page, or an expression.
const ask = (...question) => page.evaluate(...question);

async function has(condition) {
  // While a page unloads it gives no answer.
  for (let tries = 500; !(await ask(condition).catch(() => false)); --tries) {
    assert(tries, `never came: ${condition}`);
    await rest(20);
  }
}

const at = (...place) => ask((...place) => middleOf(...place), ...place);
const click = async (...place) => page.mouse.click(...(await at(...place)));
const move = async (...place) => page.mouse.move(...(await at(...place)));

async function press(square) {
  await move(square);
  await page.mouse.down();
}

async function drag(...squares) {
  await press(squares[0]);
  for (const square of squares.slice(1)) await move(square);
  await page.mouse.up();
}

async function keys(names) {
  for (const name of names.split(' ')) await page.keyboard.press(name);
}

async function shortcut(letter) {
  await page.keyboard.down('Control');
  await keys(letter);
  await page.keyboard.up('Control');
}

/// The box closes at once. The game goes on with the close event, which comes later.
async function closeBox(key = 'Enter') {
  await keys(key);
  await has("awaited == 'input'");
}

/// Fails if axe-core has a serious finding.
async function judge(what) {
  const {violations} = await ask(`(() => {${axe}; return axe.run(); })()`);
  const serious = violations.filter(({impact}) => /serious|critical/.test(impact));
  assert.deepEqual([what, ...serious.map(({help, nodes}) => [help, nodes[0].html])], [what]);
}

/// Plays a game on a page that `open` opens by these options. No page may complain.
const check = (what, {skip = false, ...options}, steps) =>
  test(`${browserName}: ${what}`, {skip, timeout: 60000}, async () => {
    await open(options);
    await begin();
    await steps();
    await close();
  });

check('a turn in real time from disk, at last hidden, and Exit', {}, async () => {
  await page.goto(pathToFileURL(file).href);
  await ask(`(${prepare})(null)`);
  await has("all('#view text', text => text.textContent).includes('Velmoran')");
  await has("awaited == 'box'");
  await closeBox('Escape');
  await drag(9, 13);
  assert.equal(await ask('board()'), Moved);
  // WebKit's driver does not hide a page.
  const other = !isWebKit && (await browser.newPage());
  if (other) await has('document.hidden');
  await has("news.innerText.includes('green')");
  if (other) await other.close();
  await shortcut('x');
  assert.equal(await ask('sentence()'), 'The game is closed.');
});

// WebKit's driver has no touch and no scale.
check('fingers on a phone', {view: Phone, skip: isWebKit}, async () => {
  const {touchscreen} = page;
  const tap = async (...place) => touchscreen.tap(...(await at(...place)));
  const isCoarse = await ask("matchMedia('(pointer: coarse)').matches");
  assert(isCoarse || browserName != 'chrome');
  const least = isCoarse ? 44 : 1;
  await shortcut('a');
  assert((await ask("one('dialog button').offsetHeight")) >= least, 'OK');
  await tap('dialog button');
  await has("awaited == 'input'");
  const tapMenu = async (caption, open) => {
    await tap('nav button', caption);
    await has(`all('nav [aria-expanded=true]').length == ${open}`);
  };
  for (const size of ['280 400 280', '640 300 256', '820 1180 820']) {
    const [width, height, board] = size.split(' ').map(Number);
    await page.setViewport({...Phone, width, height});
    await has(`innerWidth == ${width}`);
    await tapMenu('Help', 1);
    await tapMenu('Official', 2);
    // A page that is too wide shrinks, and innerWidth grows.
    const heightsIn = (width, height) =>
      all('nav button, nav kbd, [role=menu], #view', part => part.getBoundingClientRect())
        .filter(part => part.height)
        .map(({left, top, right, bottom}) => {
          const isInside = left >= 0 && top >= 0 && right <= width && bottom < height + 0.1;
          return isInside && bottom - top;
        });
    const heights = await ask(heightsIn, width, height);
    assert.equal(heights.length, isCoarse ? 11 : 13, 'entries, shortcuts, menus and board');
    assert(Math.min(...heights) >= least, `${heights} on ${size}`);
    if (isCoarse) assert.equal(Math.round(heights.at(-1)), board);
    await tapMenu('Help', 0);
  }
  await tap(9); // the next finger has another id
  const finger = await touchscreen.touchStart(...(await at(9)));
  await finger.move(...(await at(13)));
  assert.equal(await ask('outline()'), 2);
  await finger.end();
  assert.equal(await ask('board()'), Moved);
  const scrolls = await ask(() => {
    const root = document.documentElement;
    const styles = [getComputedStyle(root).overscrollBehavior, getComputedStyle(view).userSelect];
    return [root.scrollWidth, scrollX, scrollY, visualViewport.scale, ...styles].join();
  });
  assert.equal(scrolls, '820,0,0,1,none,none');
  await shortcut('x');
  assert((await ask("one('main button').offsetHeight")) >= least, 'Start again');
});

check('sharp squares, round discs, hollow outlines', {skip: isWebKit}, async () => {
  await press(9);
  for (const square of [13, 9]) await move(square);
  const shot = await (await page.$('#view')).screenshot({encoding: 'base64'});
  const colours = await ask(async data => {
    const image = new Image();
    image.src = 'data:image/png;base64,' + data;
    await image.decode();
    const side = image.width / 8;
    const canvas = new OffscreenCanvas(image.width, image.height).getContext('2d');
    canvas.drawImage(image, 0, 0);
    const pixels = (...place) => [...new Uint32Array(canvas.getImageData(...place).data.buffer)];
    // Near the upper edge of the squares, where no disc is; on the outline; on the disc.
    const row = new Set(pixels(4, 2, 7.9 * side, 1));
    return [row.size, ...pixels(0, 5.5 * side, 1, 1), ...pixels(0.9 * side, 5.5 * side, 1, 1)];
  }, shot);
  assert.deepEqual(colours, [2, 0xffffffff, 0xfffe0124]);
});

check('what the page says of itself, asks for and keeps', {}, async () => {
  assert.match(html, /content="default-src 'none';(?!.*unsafe-inline)/);
  const facts = await ask(async () => {
    const icon = new Image();
    icon.src = one('[rel=apple-touch-icon]').href;
    await icon.decode();
    const names = [document.title, view.ariaLabel, one('[rel=icon]').href.split(',')[0]];
    const kept = [document.cookie, localStorage.length, sessionStorage.length];
    const databases = await indexedDB.databases();
    const sizes = [view.clientWidth, icon.naturalWidth, all('meta').length];
    return [...names, ...sizes, ...kept, databases.length].join();
  });
  assert.equal(facts, 'Velmoran,Velmoran,data:image/svg+xml,520,192,10,,0,0,0');
  const before = await ask('readOut()');
  assert.deepEqual([before.length, before[8]], [32, 'blue man on square 9']);
  await drag(9, 13);
  await ask('settle()');
  const changed = (await ask('readOut()')).filter(words => !before.includes(words));
  const told = await ask("all('[role=log] p', line => line.textContent).join(', ')");
  assert.deepEqual([changed.length, told.split(', ').sort()], [4, changed.sort()]);
  assert.equal(await ask('due'), null, 'no time while blue thinks');
});

const withoutDetail = 'delete PointerEvent.prototype.getCoalescedEvents'; // as in some browsers
check('every end of a drag', {change: withoutDetail}, async () => {
  const ends = {
    Escape: "key('Escape')",
    'a second button': "point('pointermove', 13, {buttons: 3})",
    'a menu': "one('nav button').click()",
    'another window': "dispatchEvent(new Event('blur'))",
    'a lost pointer': "point('lostpointercapture', 13)",
    'a release that the page never saw': "point('pointermove', 13)",
    'a box': "key('a', {ctrlKey: true})",
    'a hidden page': `Object.defineProperty(document, 'hidden', {value: true}) &&
      document.dispatchEvent(new Event('visibilitychange'))`,
  };
  for (const [end, act] of Object.entries(ends)) {
    await press(9);
    await move(13);
    const during = await ask('outline()');
    await ask(act);
    const after = await ask('outline()');
    if (await ask('box.open')) await closeBox();
    await page.mouse.up();
    assert.deepEqual([end, during, after, await ask('board()')], [end, 2, 0, Start]);
  }
  await ask("point('pointerdown', 9, {isPrimary: false, buttons: 1})");
  await ask("point('pointermove', 9, {isPrimary: false, buttons: 1})");
  assert.equal(await ask('outline()'), 0, 'a second finger plays no part');
  const menu = "view.dispatchEvent(new Event('contextmenu', {cancelable: true}))";
  assert.equal(await ask(menu), false, 'no menu of the browser opens');
  await press(9);
  await move(13);
  await page.mouse.move(5, 5);
  await ask("point('pointermove', 5, {pointerId: 4711})");
  assert.equal(await ask('outline()'), 2, 'the pointer is followed outside, and no other');
  await page.mouse.up();
  assert.deepEqual(await ask('[board(), outline()]'), [Start, 0]);
  await drag(9, 13);
  assert.equal(await ask('board()'), Moved);
});

check('New Game and a box in the middle of a turn', {}, async () => {
  await drag(9, 13);
  await ask('settle(3)');
  await click('nav button', 'Help');
  await click('nav button', 'About');
  const state = await ask('[headline(), icons(), focused(), due].join()'); // timers are held
  assert.equal(state, 'About Velmoran,none,none,inline,OK,');
  await judge('box');
  await click(30); // takes the focus from OK
  await closeBox();
  assert.deepEqual(await ask('[headline(), focused()]'), [false, 'board']);
  await shortcut('a');
  await click('dialog button');
  await has("awaited == 'input'");
  await ask("key('a', {metaKey: true})");
  assert.equal(await ask('headline()'), 'About Velmoran');
  await page.keyboard.down('Enter');
  await has("awaited == 'input'");
  await shortcut('c');
  await page.keyboard.down('Enter');
  assert.equal(await ask('headline()'), 'Velmoran Game Controls', 'a held Enter closes one box');
  await page.keyboard.up('Enter');
  await closeBox();
  await ask('settle(1)');
  await click('nav button', 'File');
  await click('nav button', 'New Game');
  assert.deepEqual(await ask('[settle(), focused()]'), [Start, 'board']);
  await drag(9, 13);
  assert.match(await ask('settle()'), Answered);
});

check('menus', {}, async () => {
  assert.equal(await ask('all(\'nav [tabindex="0"]\').length'), 1, 'stops of Tab');
  await ask("one('nav button').focus()");
  for (const [names, focus] of [
    ['Enter', 'New Game'],
    ['Escape Escape', 'board'],
    ['Control', 'board'],
    ['Tab ArrowDown', 'New Game'],
    ['Escape ArrowRight', 'Help'],
    ['ArrowRight ArrowUp', 'Exit'],
    ['ArrowDown', 'New Game'],
    ['ArrowLeft ArrowUp', 'Official Rules of Velmoran'],
    ['ArrowRight', 'Part 1'],
    ['ArrowLeft', 'Official Rules of Velmoran'],
    ['r', 'Part 1'],
    ['Escape', 'Official Rules of Velmoran'],
  ]) {
    await keys(names);
    assert.equal(await ask('focused()'), focus, names);
  }
  await keys('r 3');
  assert.equal(await ask('headline()'), 'Rules of Velmoran (Part 3)');
  await closeBox('Escape');
  const shown = () =>
    ask("all('nav span').filter(item => item.offsetParent).map(item => item.innerText).join()");
  await click('nav button', 'File');
  assert.equal(await shown(), 'File,New Game,Exit,Help');
  await move('nav button', 'Help');
  await move('nav button', 'Official');
  const help = 'Game Controls,About This Program,Official Rules of Velmoran,Part 1,Part 2,Part 3';
  assert.equal(await shown(), 'File,Help,' + help);
  await judge('menu');
  if (browserName == 'chrome') {
    const tools = await page.createCDPSession();
    const features = [{name: 'forced-colors', value: 'active'}];
    await tools.send('Emulation.setEmulatedMedia', {features});
    const {length} = await (await page.$('nav button:focus')).screenshot();
    assert(length > 1000, 'the chosen entry in forced colours is more than a bar');
  }
  await click('nav button', 'Help');
  assert.equal(await shown(), 'File,Help');
  await ask("key('\u0441', {code: 'KeyC', ctrlKey: true})"); // as on a Cyrillic keyboard
  assert.equal(await ask('headline()'), 'Velmoran Game Controls');
  await closeBox();
  await shortcut('x');
  assert.equal(await ask('sentence()'), 'The game is closed.');
  await keys('Enter');
  await has("awaited == 'input'");
});

check('a box on a small screen', {view: {width: 500, height: 600}}, async () => {
  await shortcut('c');
  for (const width of [500, 600, 700]) {
    await page.setViewport({width, height: 600});
    await has(`innerWidth == ${width}`);
    await ask(() => new Promise(requestAnimationFrame));
    const [rows, isJoined, text] = await ask(() => {
      const text = one('dialog section'),
        range = document.createRange();
      range.selectNodeContents(text);
      const bottoms = [...range.getClientRects()].map(({bottom}) => Math.round(bottom));
      return [new Set(bottoms).size, !one('dialog br').offsetParent, text.innerText];
    });
    assert(isJoined ? width < 700 : rows == 11, `${rows} lines, ${width} wide`);
    assert.match(text, /\. {2}To move, \n?drag/, `blanks, ${width} wide`);
  }
  await page.setViewport({width: 640, height: 300});
  await has('innerHeight == 300');
  const isSeen = await ask(() => {
    const parts = ['#view', 'dialog h1', 'dialog p', 'dialog button'];
    const [view, title, text, button] = parts.map(part => one(part).getBoundingClientRect());
    const isOverlapping = title.top <= 0 || text.top < title.bottom;
    return [isOverlapping, button.bottom < innerHeight, view.bottom < innerHeight + 0.1];
  });
  assert.deepEqual(isSeen, [false, true, true], 'title and text; button; board');
  await keys('PageDown');
  await has('box.scrollTop > 0');
  await closeBox();
});

check('what comes from elsewhere changes nothing', {}, async () => {
  await ask(() => {
    dispatchEvent(new ErrorEvent('error', {message: 'foreign', error: new Error('foreign')}));
    one('nav button').dispatchEvent(new Event('keydown', {bubbles: true}));
    point('pointerdown', 9, {pointerId: 4711, buttons: 1});
  });
  await drag(9, 13);
  assert.match(await ask('settle()'), Answered);
  await shortcut('a');
  const body = await ask('document.documentElement.outerHTML');
  await close(2); // the error, and that the page cannot capture this pointer
  await open({body: '<!DOCTYPE html>' + body});
  await has('!!due');
  await judge('splash');
  assert.deepEqual(await ask('[headline(), news.innerText]'), [false, '']);
  await begin();
  await drag(9, 13);
  assert.equal(await ask('board()'), Moved);
  await judge('board');
});

check('a page that cannot go on says so', {}, async () => {
  assert(html.indexOf('id="program"') < html.indexOf('<main'), 'nothing is said while it comes');
  await ask(() => {
    const item = one('nav [value]');
    item.value = 99;
    item.click();
  });
  assert.match(await ask('sentence()'), /stopped/);
  await page.mouse.click(300, 300);
  await close(1);
  await open({body: html.replace("'wasm-unsafe-eval'", '')});
  await has('complaints.length');
  assert.match(await ask('sentence()'), /WebAssembly.* forbids/);
  await close(await ask('complaints.length'));
  await open({change: 'delete window.DecompressionStream'});
  await has('main.innerText');
  assert.match(await ask('sentence()'), /new enough/);
  await judge('an old browser');
});

// The second of the day that seeds a game, then its turns and its end. The number of draws is left
// out: one draw more shows in the boards that follow.
const records = readFileSync('tests/data/games.txt', 'utf8').trim();
const games = records
  .replace(/ \| \d+$/gm, '')
  .split(/\n?^game /m)
  .slice(1);
assert.equal(games.length, 6);
for (const [second, ...turns] of games.map(game => game.split('\n'))) {
  const end = turns.pop();
  check(`game ${second} as on the virtual host`, {seconds: Number(second)}, async () => {
    for (const turn of turns) {
      const [squares, board] = turn.split(' | ');
      await drag(...squares.split(' '));
      assert.equal(await ask('settle()'), board, turn);
    }
    assert.equal(await ask("one('dialog section').textContent"), end);
    assert.equal(await ask("[icons(), all('#news p').length].join()"), 'inline,none,none,20');
  });
}
