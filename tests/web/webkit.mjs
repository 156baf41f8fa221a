// Debian's WebKit by plain WebDriver, with only what the tests need, called as in puppeteer. It has
// no headless mode, so it runs on a display of its own.
import {execSync, spawn} from 'node:child_process';
import {once} from 'node:events';
import {setTimeout as rest} from 'node:timers/promises';

// WebDriver gives the keys these numbers from U+E000 on.
const Keys = `Null Cancel Help Backspace Tab Clear Return Enter Shift Control Alt Pause Escape Space
  PageUp PageDown End Home ArrowLeft ArrowUp ArrowRight ArrowDown`.split(/\s+/);

/// A page that sends its commands by `call`.
function makePage(call) {
  const act = (type, actions) => call('POST', '/actions', {actions: [{type, id: type, actions}]});
  const point = (...actions) => act('pointer', actions);
  const type = (...actions) => act('key', actions);
  const way = (x, y) => ({type: 'pointerMove', duration: 30, x: Math.round(x), y: Math.round(y)});
  const [down, up] = ['pointerDown', 'pointerUp'].map(type => ({type, button: 0}));
  const key = (type, name) => {
    const place = Keys.indexOf(name);
    return {type, value: place < 0 ? name : String.fromCharCode(0xe000 + place)};
  };
  const evaluate = async (what, ...args) => {
    const expression = typeof what == 'string' ? what : `(${what})(...args)`;
    const script = `const args = [...arguments], done = args.pop();
      const fail = error => done({error: String(error)});
      (async () => ${expression})().then(value => done({value}), fail);`;
    const {value, error} = await call('POST', '/execute/async', {script, args});
    if (error) throw new Error(error);
    return value;
  };
  const goto = url => call('POST', '/url', {url});
  return {
    evaluate,
    goto,
    mouse: {
      move: (x, y) => point(way(x, y)),
      down: () => point(down),
      up: () => point(up),
      click: (x, y) => point(way(x, y), down, up),
    },
    keyboard: {
      down: name => type(key('keyDown', name)),
      up: name => type(key('keyUp', name)),
      press: name => type(key('keyDown', name), key('keyUp', name)),
    },
    close: () => goto('about:blank'),
    /// Sets the size of the page. The window is larger, by its address bar and the like: its size
    /// is corrected until that of the page is right.
    async setViewport({width, height}) {
      let outer = {width, height};
      for (;;) {
        await call('POST', '/window/rect', outer);
        await rest(50);
        const [wide, high] = await evaluate('[innerWidth, innerHeight]');
        if (wide == width && high == height) return;
        outer = {width: outer.width + width - wide, height: outer.height + height - high};
      }
    },
  };
}

export async function launchWebKit() {
  const stdio = ['ignore', 'pipe', 'ignore'];
  const display = spawn('Xvfb', ['-displayfd', '1', '-screen', '0', '1600x1200x24'], {stdio});
  const [number] = await once(display.stdout, 'data');
  process.env.DISPLAY = ':' + String(number).trim();
  process.env.WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS = '1'; // root cannot start it otherwise
  const port = 10000 + (process.pid % 50000);
  const driver = spawn('WebKitWebDriver', [`--port=${port}`], {stdio: 'ignore'});
  const ask = async (method, path, body) => {
    const url = `http://127.0.0.1:${port}/session${path}`;
    const {value} = await (await fetch(url, {method, body: JSON.stringify(body)})).json();
    if (value?.error) throw new Error(value.error + ': ' + value.message);
    return value;
  };
  // The folder of the browser has the architecture and the version in its name.
  const [binary] = execSync('ls /usr/lib/*/webkit*/MiniBrowser').toString().split('\n');
  const browserOptions = {binary, args: ['--automation']};
  const alwaysMatch = {browserName: 'MiniBrowser', 'webkitgtk:browserOptions': browserOptions};
  let session;
  for (let tries = 50; !session; --tries) {
    await rest(100);
    session = await ask('POST', '', {capabilities: {alwaysMatch}}).catch(error => {
      if (!tries) throw error;
    });
  }
  const call = (method, path, body) => ask(method, `/${session.sessionId}${path}`, body);
  return {
    newPage: async () => makePage(call),
    async close() {
      await call('DELETE', '');
      driver.kill();
      display.kill();
    },
  };
}
