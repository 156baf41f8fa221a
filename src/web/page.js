'use strict';
// The page around the game: the functions of page.h, and the input of whoever plays.

const Kinds = {Press: 0, Move: 1, Release: 2, CancelDrag: 3, MenuCommand: 4};
const [main, news, box] = document.querySelectorAll('main, #news, dialog');
const find = (selector, within = document) => [...within.querySelectorAll(selector)];

let game;       // what the program exports; nothing before it runs and after it has stopped
let stack;      // where its stack lies while it waits
let isWaiting;  // it goes on as soon as there is input
let alarm;      // or once this timer has run out
let view;       // the client area of the form that is shown

// ---- The program runs until it waits. Its stack is laid aside then (Binaryen's Asyncify).

const Rewinding = 2;
const Ended = new Error('The game has ended.');

function suspending(begin) {
  return (...values) => {
    if (game.asyncify_get_state() == Rewinding) return game.asyncify_stop_rewind();
    begin(...values);
    game.asyncify_start_unwind(stack);
  };
}

function run() {
  game.run();
  game.asyncify_stop_unwind();
}

function goOn() {
  clearTimeout(alarm);
  isWaiting = false;
  game.asyncify_start_rewind(stack);
  run();
}

function put(kind, x = 0, y = 0, command = 0) {
  if (!game || box.open) return;
  game.put(kind, x, y, command);
  if (isWaiting) goOn();
}

const cancelDrag = () => put(Kinds.CancelDrag);

/// Leaves a sentence instead of the game, of which nothing runs any more.
function stop(reason) {
  main.className = '';
  if (reason != Ended) console.error(reason);
  if (!game) return;  // it never ran: the page's own sentence has stood there all the time
  game = undefined;
  clearTimeout(alarm);
  box.close();
  main.innerHTML = '<p></p><button>Start again</button>';
  main.firstChild.textContent =
      reason == Ended ? 'The game is closed.' : 'The game has found a fault in itself and stopped.';
  main.lastChild.onclick = () => location.reload();
  main.lastChild.focus();
}

addEventListener('error', event => {
  event.preventDefault();
  stop(event.error);
});

// ---- What the program asks for

function textAt(address) {
  const memory = new Uint8Array(game.memory.buffer);
  return new TextDecoder().decode(memory.subarray(address, memory.indexOf(0, address)));
}

function elementOf(tag, text) {
  const element = document.createElement(tag);
  element.textContent = text;
  return element;
}

const page = {
  now: () => performance.now(),
  secondsSinceMidnight() {
    const now = new Date();
    return (now.getHours() * 60 + now.getMinutes()) * 60 + now.getSeconds() +
        now.getMilliseconds() / 1000;
  },
  wait: suspending(milliseconds => {
    isWaiting = true;
    if (milliseconds >= 0) alarm = setTimeout(goOn, Math.ceil(milliseconds));
  }),
  showBox: suspending((text, title, icon) => {
    view.focus();
    box.querySelector('h1').textContent = textAt(title);
    box.querySelector('svg').setAttribute('class', 'icon' + icon);
    const paragraphs = textAt(text).replaceAll('\r\n', '\n').split('\n\n');
    box.querySelector('section').replaceChildren(...paragraphs.map(text => elementOf('p', text)));
    box.showModal();
  }),
  open(markup, title, icon) {
    main.className = '';
    main.innerHTML = textAt(markup);
    document.title = textAt(title);
    document.querySelector('link').href = 'data:image/svg+xml,' + encodeURIComponent(textAt(icon));
    view = document.querySelector('#view');
    watchPointer();
    watchMenu();
  },
  paint(place, markup) {
    const control = document.getElementById('control' + place);
    control.innerHTML = textAt(markup);
    const caption = control.querySelector('text');
    const excess = caption?.getComputedTextLength() / caption?.dataset.room;
    if (excess > 1) caption.setAttribute('font-size', caption.getAttribute('font-size') / excess);
  },
  describe(place, words) {
    const control = document.getElementById('control' + place);
    control.setAttribute('role', 'img');
    control.setAttribute('aria-label', textAt(words));
  },
  announce(words) {
    news.append(elementOf('p', textAt(words)));
    if (news.childElementCount > 20) news.firstChild.remove();
  },
  end() { throw Ended; },
  fail(text) { throw new Error(textAt(text)); },
};

// ---- Pointer and keys

const Left = 1;

function watchPointer() {
  let held = 0;  // the buttons that were down last
  let holder;    // the pointer that they belong to
  const follow = event => {
    if (!event.isPrimary || (held && event.pointerId != holder)) return;
    const area = view.getBoundingClientRect();
    const scale = view.viewBox.baseVal.width / area.width;
    const at = e => [(e.clientX - area.left) * scale, (e.clientY - area.top) * scale].map(Math.floor);
    const isMove = event.type == 'pointermove';
    const way = isMove && event.getCoalescedEvents?.() || [];
    for (const step of way.length ? way : isMove ? [event] : []) put(Kinds.Move, ...at(step));
    if (event.type == 'pointerdown') {
      held = 0;
      holder = event.pointerId;
      view.setPointerCapture(holder);
      view.focus();
    }
    const down = event.buttons & ~held, up = held & ~event.buttons;
    held = event.buttons;
    if (down & Left) put(Kinds.Press, ...at(event));
    if (down & ~Left) cancelDrag();
    // A pointer that comes along without a button has let go where the page did not see it.
    if (up & Left) isMove && !held ? cancelDrag() : put(Kinds.Release, ...at(event));
  };
  for (const type of ['pointerdown', 'pointermove', 'pointerup']) view.addEventListener(type, follow);
  view.addEventListener('lostpointercapture', () => {
    if (held) cancelDrag();
    held = 0;
  });
  view.addEventListener('contextmenu', event => event.preventDefault());
}

addEventListener('blur', cancelDrag);
document.addEventListener('visibilitychange', () => document.hidden && cancelDrag());

/// The letter of a key; where it has none of ours, as in Greek, what stands there on other keyboards.
const letterOf = ({key, code}) =>
  (/^[\x20-\x7e]+$/.test(key) ? key : code.replace('Key', '')).toUpperCase();

document.addEventListener('keydown', event => {
  if (box.open) {
    // A click beside the button has taken the focus from it.
    if (event.key != 'Enter' || event.repeat) return;
    box.close();
  } else {
    if (event.key == 'Escape') cancelDrag();
    if (!(event.ctrlKey || event.metaKey) || event.altKey || event.shiftKey) return;
    const letter = letterOf(event);
    const shortcut = find('nav kbd').find(kbd => kbd.textContent == 'Ctrl+' + letter);
    if (!shortcut) return;
    shortcut.parentNode.click();
  }
  event.preventDefault();
});
box.querySelector('button').onclick = () => box.close();
box.onclose = () => game && goOn();

// ---- Menus: an entry that opens one is followed by it.

const isOwner = item => item.hasAttribute('aria-haspopup');
const isOpen = item => item.getAttribute('aria-expanded') == 'true';
const menuOf = item => item.closest('[role=menu], [role=menubar]');
const ownerOf = item => menuOf(item).previousElementSibling;  // none of an entry of the bar
const itemsOf = menu => find(':scope > button, :scope > div > button', menu);

/// Shows the menu of this entry and those that it lies in, and no others; without an entry none.
function openMenu(item) {
  for (const owner of find('nav [aria-haspopup]')) {
    owner.setAttribute('aria-expanded', owner.parentNode.contains(item));
  }
  if (item) cancelDrag();
}

function enterMenu(owner, place) {
  openMenu(owner);
  itemsOf(owner.nextElementSibling).at(place).focus();
}

function leaveMenu(owner) {
  openMenu(ownerOf(owner));
  owner.focus();
}

function watchMenu() {
  const bar = main.querySelector('nav');
  if (!bar) return;
  bar.addEventListener('click', ({target, detail}) => {
    const item = target.closest('button');
    if (!item) return;
    if (!isOwner(item)) {
      view.focus();
      put(Kinds.MenuCommand, 0, 0, item.value);
    } else if (!detail) {
      enterMenu(item, 0);  // by a key
    } else {
      openMenu(menuOf(item) == bar && isOpen(item) ? null : item);
      item.focus();
    }
  });
  bar.addEventListener('pointerover', ({target, pointerType}) => {
    const item = target.closest('button');
    if (!item || pointerType != 'mouse' || !itemsOf(bar).some(isOpen)) return;
    openMenu(isOwner(item) ? item : ownerOf(item));
    item.focus();
  });
  // Not every browser gives a button the focus at a click: it is given here, in all of them.
  bar.addEventListener('mousedown', event => event.preventDefault());
  bar.addEventListener('focusout', ({relatedTarget}) => {
    if (!bar.contains(relatedTarget)) openMenu(null);
  });
  bar.addEventListener('keydown', event => {
    const item = event.target, owner = ownerOf(item), items = itemsOf(menuOf(item));
    const beside = (all, one, step) => all.at((all.indexOf(one) + step) % all.length);
    const goAlong = step => {
      const top = beside(itemsOf(bar), itemsOf(bar).find(top => top.parentNode.contains(item)), step);
      itemsOf(bar).some(isOpen) ? enterMenu(top, 0) : top.focus();
    };
    const byKey = {
      ArrowDown: () => owner ? beside(items, item, 1).focus() : enterMenu(item, 0),
      ArrowUp: () => owner ? beside(items, item, -1).focus() : enterMenu(item, -1),
      ArrowRight: () => owner && isOwner(item) ? enterMenu(item, 0) : goAlong(1),
      ArrowLeft: () => owner && ownerOf(owner) ? leaveMenu(owner) : goAlong(-1),
      Escape: () => owner ? leaveMenu(owner) : isOpen(item) ? openMenu(null) : view.focus(),
    };
    const letter = letterOf(event);
    const named = items.find(other => other.querySelector('u')?.textContent.toUpperCase() == letter);
    const act = byKey[event.key] ?? (named && (() => named.click()));
    if (!act || event.ctrlKey || event.metaKey || event.altKey) return;
    act();
    event.preventDefault();
  });
}

// ---- Start

async function start() {
  const packed = Uint8Array.from(atob(find('#program')[0].textContent), c => c.charCodeAt(0));
  const bytes = new Blob([packed]).stream().pipeThrough(new DecompressionStream('gzip'));
  const program = new Response(bytes, {headers: {'Content-Type': 'application/wasm'}});
  game = (await WebAssembly.instantiateStreaming(program, {page})).instance.exports;
  game._initialize();
  stack = game.stack();
  run();
}
start().catch(stop);
