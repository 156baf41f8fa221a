'use strict';
// Input by pointer and keyboard.

function watchPointer() {
  /** The id of the captured pointer; undefined if none is. @type {number | undefined} */
  let holder;
  let area = view.getBoundingClientRect();
  /** @param {PointerEvent} event */
  const follow = event => {
    if (!event.isPrimary || event.pointerId != (holder ?? event.pointerId)) return;
    if (event.type == 'pointerdown') {
      view.setPointerCapture(event.pointerId);
      holder = event.pointerId;
      view.focus();
    }
    // Not during a drag: it would force a layout at each event.
    if (!event.buttons || event.type == 'pointerdown') area = view.getBoundingClientRect();
    const scale = view.viewBox.baseVal.width / area.width;
    const isMove = event.type == 'pointermove';
    const way = isMove ? (event.getCoalescedEvents?.() ?? []) : [];
    for (const {clientX, clientY, buttons} of way.length ? way : [event]) {
      const x = Math.floor((clientX - area.left) * scale);
      const y = Math.floor((clientY - area.top) * scale);
      put(program => program.see(x, y, buttons, isMove));
    }
  };
  view.addEventListener('pointerdown', follow);
  view.addEventListener('pointermove', follow);
  view.addEventListener('pointerup', follow);
  view.addEventListener('lostpointercapture', () => {
    holder = undefined;
    cancelDrag();
  });
  view.addEventListener('contextmenu', event => event.preventDefault());
}

addEventListener('blur', cancelDrag);
document.addEventListener('visibilitychange', () => document.hidden && cancelDrag());

/**
 * What a key types, in upper case. If that is not ASCII, as on a Greek keyboard, the letter that
 * the key has on a US keyboard. Autofill sends key events without `key` and `code`.
 * @param {Partial<KeyboardEvent>} event
 */
const letterOf = ({key = '', code = ''}) =>
  (/^[\x20-\x7e]+$/.test(key) ? key : code.replace('Key', '')).toUpperCase();

document.addEventListener('keydown', event => {
  if (box.open) {
    // The button may have lost the focus: a click beside it takes the focus away.
    if (event.key != 'Enter') return;
    if (!event.repeat) box.close();
  } else {
    if (event.key == 'Escape') cancelDrag();
    if (!(event.ctrlKey || event.metaKey) || event.altKey || event.shiftKey) return;
    const letter = letterOf(event);
    const shortcut = [...document.querySelectorAll('nav kbd')].find(
      kbd => kbd.textContent == 'Ctrl+' + letter,
    );
    if (!shortcut) return;
    shortcut.parentElement?.click();
  }
  event.preventDefault();
});
one('dialog button').onclick = () => box.close();
box.onclose = () => {
  if (awaited == 'box') goOn();
};
