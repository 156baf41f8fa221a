'use strict';
// Pointer and keys.

const Left = 1;

function watchPointer() {
  let held = 0;     // the buttons that were down last
  let holder = -1;  // the pointer that they belong to
  /** @param {PointerEvent} event */
  const follow = event => {
    if (!event.isPrimary || (held && event.pointerId != holder)) return;
    const area = view.getBoundingClientRect();
    const scale = view.viewBox.baseVal.width / area.width;
    /** @param {PointerEvent} e @returns {[number, number]} */
    const at = e => [
      Math.floor((e.clientX - area.left) * scale), Math.floor((e.clientY - area.top) * scale),
    ];
    const isMove = event.type == 'pointermove';
    const way = isMove ? event.getCoalescedEvents?.() ?? [] : [];
    for (const step of way.length ? way : isMove ? [event] : []) {
      put(program => program.move(...at(step)));
    }
    if (event.type == 'pointerdown') {
      view.setPointerCapture(event.pointerId);
      held = 0;
      holder = event.pointerId;
      view.focus();
    }
    const down = event.buttons & ~held, up = held & ~event.buttons;
    held = event.buttons;
    if (down & Left) put(program => program.press(...at(event)));
    if (down & ~Left) cancelDrag();
    if (!(up & Left)) return;
    // A pointer that comes along without a button has let go where the page did not see it.
    if (isMove && !held) cancelDrag();
    else put(program => program.release(...at(event)));
  };
  view.addEventListener('pointerdown', follow);
  view.addEventListener('pointermove', follow);
  view.addEventListener('pointerup', follow);
  view.addEventListener('lostpointercapture', () => {
    if (held) cancelDrag();
    held = 0;
  });
  view.addEventListener('contextmenu', event => event.preventDefault());
}

addEventListener('blur', cancelDrag);
document.addEventListener('visibilitychange', () => document.hidden && cancelDrag());

/**
 * The letter of a key; where it has none of ours, as in Greek, what stands there on others.
 * A browser that fills in a field sends key events without either.
 * @param {Partial<KeyboardEvent>} event
 */
const letterOf = ({key = '', code = ''}) =>
  (/^[\x20-\x7e]+$/.test(key) ? key : code.replace('Key', '')).toUpperCase();

document.addEventListener('keydown', event => {
  if (box.open) {
    // A click beside the button has taken the focus from it.
    if (event.key != 'Enter') return;
    if (!event.repeat) box.close();
  } else {
    if (event.key == 'Escape') cancelDrag();
    if (!(event.ctrlKey || event.metaKey) || event.altKey || event.shiftKey) return;
    const letter = letterOf(event);
    const shortcut = [...document.querySelectorAll('nav kbd')]
        .find(kbd => kbd.textContent == 'Ctrl+' + letter);
    if (!shortcut) return;
    shortcut.parentElement?.click();
  }
  event.preventDefault();
});
one('dialog button').onclick = () => box.close();
box.onclose = () => {
  if (awaited == 'box') goOn();
};
