// Debian's WebKit by plain WebDriver, with only what the tests need. It has no headless mode, so it
// runs on a display of its own.
import {spawn} from 'node:child_process';
import {once} from 'node:events';
import {existsSync, readdirSync} from 'node:fs';

const Buttons = {left: 0, right: 2};
const Keys = {
  Tab: '\ue004',
  Enter: '\ue007',
  Control: '\ue009',
  Escape: '\ue00c',
  PageDown: '\ue00f',
  ArrowLeft: '\ue012',
  ArrowUp: '\ue013',
  ArrowRight: '\ue014',
  ArrowDown: '\ue015',
  Meta: '\ue03d',
};

class Page {
  constructor(call) {
    this.call = call;
    const act = (type, id, ...actions) =>
      call('POST', '/actions', {actions: [{type, id, actions}]});
    const point = (...actions) => act('pointer', 'mouse', ...actions);
    const button = (type, {button = 'left'} = {}) => ({type, button: Buttons[button]});
    const way = (x, y) => ({type: 'pointerMove', duration: 30, x: Math.round(x), y: Math.round(y)});
    const key = (type, name) => ({type, value: Keys[name] ?? name});
    this.mouse = {
      move: (x, y) => point(way(x, y)),
      down: options => point(button('pointerDown', options)),
      up: options => point(button('pointerUp', options)),
      click: (x, y, options) =>
        point(way(x, y), button('pointerDown', options), button('pointerUp', options)),
    };
    this.keyboard = {
      down: name => act('key', 'keys', key('keyDown', name)),
      up: name => act('key', 'keys', key('keyUp', name)),
      press: name => act('key', 'keys', key('keyDown', name), key('keyUp', name)),
    };
  }

  goto(url) {
    return this.call('POST', '/url', {url});
  }
  async evaluate(what, ...args) {
    const call = typeof what == 'string' ? what : `(${what})(...args)`;
    const script = `const args = [...arguments], done = args.pop();
      (async () => ${call})().then(value => done({value}), error => done({error: String(error)}));`;
    const {value, error} = await this.call('POST', '/execute/async', {script, args});
    if (error) throw new Error(error);
    return value;
  }
  async screenshot() {
    return Buffer.from(await this.call('GET', '/screenshot'), 'base64');
  }
  /// Sets the size of the page. The window is larger, by its address bar and the like: its size is
  /// corrected until that of the page is right.
  async setViewport({width, height}) {
    let [outerWidth, outerHeight] = [width, height];
    for (let tries = 0; tries < 20; ++tries) {
      await this.call('POST', '/window/rect', {width: outerWidth, height: outerHeight});
      await new Promise(resolve => setTimeout(resolve, 50));
      const [innerWide, innerHigh] = await this.evaluate(() => [innerWidth, innerHeight]);
      if (innerWide == width && innerHigh == height) return;
      outerWidth += width - innerWide;
      outerHeight += height - innerHigh;
    }
  }
  bringToFront() {}
  close() {
    return this.goto('about:blank');
  }
}

/// The browser is in the folder of its library, whose name has the architecture and the version.
function miniBrowser() {
  return readdirSync('/usr/lib')
    .flatMap(machine =>
      ['webkit2gtk-4.1', 'webkitgtk-6.0'].map(
        version => `/usr/lib/${machine}/${version}/MiniBrowser`,
      ),
    )
    .find(existsSync);
}

export async function launchWebKit() {
  const display = spawn('Xvfb', ['-displayfd', '1', '-screen', '0', '1600x1200x24'], {
    stdio: ['ignore', 'pipe', 'ignore'],
  });
  const [number] = await once(display.stdout, 'data');
  const port = 10000 + (process.pid % 50000);
  const driver = spawn('WebKitWebDriver', [`--port=${port}`], {
    stdio: 'ignore',
    env: {
      ...process.env,
      DISPLAY: ':' + String(number).trim(),
      WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS: '1', // root cannot start it otherwise
    },
  });
  const ask = async (method, path, body) => {
    const url = `http://127.0.0.1:${port}${path}`;
    const {value} = await (await fetch(url, {method, body: JSON.stringify(body)})).json();
    if (value?.error) throw new Error(value.error + ': ' + value.message);
    return value;
  };
  const browserOptions = {binary: miniBrowser(), args: ['--automation']};
  const wanted = {
    capabilities: {
      alwaysMatch: {browserName: 'MiniBrowser', 'webkitgtk:browserOptions': browserOptions},
    },
  };
  let session;
  for (let tries = 50; !session; --tries) {
    await new Promise(done => setTimeout(done, 100));
    session = await ask('POST', '/session', wanted).catch(error => {
      if (!tries) throw error;
    });
  }
  const call = (method, path, body) => ask(method, `/session/${session.sessionId}${path}`, body);
  return {
    newPage: async () => new Page(call),
    async close() {
      await call('DELETE', '');
      driver.kill();
      display.kill();
    },
  };
}
