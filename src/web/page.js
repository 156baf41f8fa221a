'use strict';
// The page around the game: the functions of page.h, and the input of whoever plays.

const Kinds = {Press: 0, Move: 1, Release: 2, CancelDrag: 3, MenuCommand: 4};
const [main, news, box] = document.querySelectorAll('main, #news, dialog');
const find = (selector, within = document) => [...within.querySelectorAll(selector)];

let game;       // what the program exports; nothing before it runs and after it has ended
let stack;      // where its stack lies while it waits
let isWaiting;  // it goes on as soon as there is input
let alarm;      // or when this timer has run out
let view;       // the client area of the form that is shown

// ---- The stack of the program is laid aside while it waits (Binaryen's Asyncify).

const Rewinding = 2;

function suspending(begin) {
  return (...values) => {
    if (game.asyncify_get_state() == Rewinding) return game.asyncify_stop_rewind();
    begin(...values);
    game.asyncify_start_unwind(stack);
  };
}

function run() {
  try {
    game.run();
    game.asyncify_stop_unwind();
  } catch (error) {
    stop(error);
  }
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

/// Leaves a sentence instead of the game. Nothing of it runs any more.
function stop(reason) {
  const text = reason == Ended ? 'The game is closed.' :
      game ? 'The game has found a fault in itself and stopped.' : main.textContent;
  if (reason != Ended) console.error(reason);
  game = undefined;
  box.close();
  main.className = '';
  main.innerHTML = '<p></p><button>Start again</button>';
  main.firstChild.textContent = text;
  main.lastChild.onclick = () => location.reload();
  main.lastChild.focus();
}

// ---- What the program asks for

const Ended = new Error('The game has ended.');

function textAt(address) {
  const memory = new Uint8Array(game.memory.buffer);
  return new TextDecoder().decode(memory.subarray(address, memory.indexOf(0, address)));
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
    alarm = milliseconds < 0 ? 0 : setTimeout(goOn, Math.ceil(milliseconds));
  }),
  showBox: suspending((text, title, icon) => {
    openMenu(null);
    document.querySelector('#title').textContent = textAt(title);
    find('g', box).forEach(g => g.style.display = g.id == 'icon' + icon ? 'inline' : '');
    document.querySelector('#text').replaceChildren(
        ...textAt(text).replaceAll('\r\n', '\n').split('\n\n').map(paragraph => {
          const element = document.createElement('p');
          element.textContent = paragraph;
          return element;
        }));
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
    document.getElementById('control' + place).innerHTML = textAt(markup);
  },
  describe(place, words) {
    const control = document.getElementById('control' + place);
    control.setAttribute('role', 'img');
    control.setAttribute('aria-label', textAt(words));
  },
  announce(words) {
    const line = document.createElement('span');
    line.textContent = textAt(words) + '. ';
    news.append(line);
    if (news.childElementCount > 20) news.firstChild.remove();
  },
  end() { throw Ended; },
  fail(text) { throw new Error(textAt(text)); },
};

// ---- Pointer and keys

const Left = 1;

function watchPointer() {
  let held = 0;  // the buttons that were down last
  let holder;    // the pointer they belong to
  const follow = event => {
    if (!event.isPrimary || (held && event.pointerId != holder)) return;
    const area = view.getBoundingClientRect();
    const scale = view.viewBox.baseVal.width / area.width;
    const at = e => [(e.clientX - area.left) * scale, (e.clientY - area.top) * scale].map(Math.floor);
    const way = event.type == 'pointermove' ? event.getCoalescedEvents?.() ?? [] : [];
    for (const step of way.length ? way : [event]) put(Kinds.Move, ...at(step));
    if (event.type == 'pointerdown') {
      held = 0;
      holder = event.pointerId;
      view.setPointerCapture(holder);
    }
    const down = event.buttons & ~held, up = held & ~event.buttons;
    held = event.buttons;
    if (down & Left) put(Kinds.Press, ...at(event));
    if (down & ~Left) cancelDrag();
    // A pointer that is found without a button has let go where the page did not see it.
    const isLost = event.type == 'pointermove' && !event.buttons;
    if (up & Left) isLost ? cancelDrag() : put(Kinds.Release, ...at(event));
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

document.addEventListener('keydown', event => {
  if (!game || event.altKey || event.shiftKey) return;
  if (box.open) {
    // A click beside the button has taken its focus away.
    if (event.key != 'Enter' || event.repeat) return;
    box.close();
  } else if (event.key == 'Escape') {
    return cancelDrag();
  } else {
    if (!event.ctrlKey && !event.metaKey) return;
    const shortcut = 'Ctrl+' + event.key.toUpperCase();
    const label = find('nav kbd').find(kbd => kbd.textContent == shortcut);
    if (!label) return;
    label.parentNode.click();
  }
  event.preventDefault();
});
box.querySelector('button').onclick = () => box.close();
box.onclose = () => game && goOn();

// ---- Menus

const menuOf = item => item.nextElementSibling;  // the menu that an entry of the bar or of a menu opens
const itemsOf = menu => find(':scope > button, :scope > div > button', menu);
const ownerOf = item => item.closest('[role=menu]')?.previousElementSibling;

/// Shows the menu of this entry and those that it lies in, and no other; none without an entry.
function openMenu(item) {
  for (const owner of find('nav [aria-expanded]')) {
    owner.setAttribute('aria-expanded', !!item && owner.parentNode.contains(item) &&
        (owner == item || menuOf(owner).contains(item)));
  }
  if (item) cancelDrag();
}

const isOpen = item => item?.getAttribute('aria-expanded') == 'true';

function enter(item, place) {
  openMenu(item);
  itemsOf(menuOf(item)).at(place).focus();
}

function watchMenu() {
  const bar = main.querySelector('nav');
  if (!bar) return;
  bar.addEventListener('click', event => {
    const item = event.target.closest('button');
    if (!item) return;
    if (item.ariaHasPopup) return openMenu(isOpen(item) ? ownerOf(item) : item);
    openMenu(null);
    view.focus();
    put(Kinds.MenuCommand, 0, 0, item.value);
  });
  bar.addEventListener('pointerover', event => {
    const item = event.target.closest('button');
    if (!item || event.pointerType != 'mouse' || !find('[aria-expanded=true]', bar).length) return;
    openMenu(item.ariaHasPopup ? item : ownerOf(item));
  });
  bar.addEventListener('focusout', event => {
    if (!bar.contains(event.relatedTarget)) openMenu(null);
  });
  bar.addEventListener('keydown', event => {
    const item = document.activeElement;
    const owner = ownerOf(item);
    const bars = itemsOf(bar);
    const beside = (items, from, step) =>
        items.at((items.indexOf(from) + step + items.length) % items.length);
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    const step = {ArrowDown: 1, ArrowUp: -1, ArrowRight: 1, ArrowLeft: -1}[event.key];
    if (event.key == 'ArrowDown' || event.key == 'ArrowUp') {
      if (owner) beside(itemsOf(item.closest('[role=menu]')), item, step).focus();
      else enter(item, step > 0 ? 0 : -1);
    } else if (event.key == 'ArrowRight' && owner && item.ariaHasPopup) {
      enter(item, 0);
    } else if (event.key == 'ArrowLeft' && owner && ownerOf(owner)) {
      openMenu(ownerOf(owner));
      owner.focus();
    } else if (step) {
      const next = beside(bars, bars.find(top => top.parentNode.contains(item)), step);
      if (find('[aria-expanded=true]', bar).length) enter(next, 0);
      else next.focus();
    } else if (event.key == 'Escape') {
      if (isOpen(item)) openMenu(owner);
      else if (owner) openMenu(ownerOf(owner) ?? null), owner.focus();
      else view.focus();
    } else {
      const key = event.key.toLowerCase();
      const named = owner && itemsOf(item.closest('[role=menu]')).find(
          other => other.querySelector('u')?.textContent.toLowerCase() == key);
      if (!named) return;
      if (named.ariaHasPopup) enter(named, 0);
      else named.click();
    }
    event.preventDefault();
  });
}

// ---- Start

async function start() {
  const packed = document.querySelector('#program').textContent;
  const bytes = new Blob([Uint8Array.from(atob(packed), c => c.charCodeAt(0))]);
  const unpacked = bytes.stream().pipeThrough(new DecompressionStream('gzip'));
  const program = new Response(unpacked, {headers: {'Content-Type': 'application/wasm'}});
  game = (await WebAssembly.instantiateStreaming(program, {page})).instance.exports;
  stack = game.stack();
  game._initialize();
  run();
}
start().catch(stop);
