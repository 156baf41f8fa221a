'use strict';
// The menus of the form. In the document a menu follows the entry that opens it.

/** @param {Element} item */
const isOwner = item => item.hasAttribute('aria-haspopup');
/** @param {Element} item */
const isOpen = item => item.getAttribute('aria-expanded') == 'true';
/** @param {Element} item */
const menuOf = item => item.closest('[role=menu], [role=menubar]');
/** The entry whose menu holds this one; null for an entry of the bar. @param {Element} item */
const ownerOf = item =>
  /** @type {HTMLButtonElement | null} */ (menuOf(item)?.previousElementSibling);
/** @param {Element | null} menu */
const itemsOf = menu =>
  [...(menu?.querySelectorAll('button') ?? [])].filter(item => menuOf(item) == menu);
/** @param {EventTarget | null} target */
const itemAt = target => (target instanceof Element ? target.closest('button') : null);

/**
 * Opens the menu of this entry and the menus around the entry. Closes all others; null closes all.
 * @param {Element | null} item
 */
function openMenu(item) {
  for (const owner of document.querySelectorAll('nav [aria-haspopup]')) {
    owner.setAttribute('aria-expanded', String(owner.parentElement?.contains(item)));
  }
  if (item) cancelDrag();
}

/** @param {Element} owner @param {number} place */
function enterMenu(owner, place) {
  openMenu(owner);
  itemsOf(owner.nextElementSibling).at(place)?.focus();
}

/** @param {HTMLElement} owner */
function leaveMenu(owner) {
  openMenu(ownerOf(owner));
  owner.focus();
}

/** The action of a key at an entry; undefined if it has none. @param {KeyboardEvent} event */
function menuAction(event) {
  const bar = itemsOf(document.querySelector('nav')),
    item = itemAt(event.target);
  if (!item || event.ctrlKey || event.metaKey || event.altKey) return;
  const owner = ownerOf(item),
    items = itemsOf(menuOf(item));
  /** @param {HTMLElement[]} all @param {HTMLElement} one @param {number} step */
  const beside = (all, one, step) => all[(all.indexOf(one) + step + all.length) % all.length];
  /** @param {number} step */
  const goAlong = step => {
    const top = bar.find(top => top.parentElement?.contains(item)) ?? item;
    const next = beside(bar, top, step);
    if (bar.some(isOpen)) enterMenu(next, 0);
    else next.focus();
  };
  switch (event.key) {
    case 'ArrowDown':
      return () => (owner ? beside(items, item, 1).focus() : enterMenu(item, 0));
    case 'ArrowUp':
      return () => (owner ? beside(items, item, -1).focus() : enterMenu(item, -1));
    case 'ArrowRight':
      return () => (owner && isOwner(item) ? enterMenu(item, 0) : goAlong(1));
    case 'ArrowLeft':
      return () => (owner && ownerOf(owner) ? leaveMenu(owner) : goAlong(-1));
    case 'Escape':
      return () => (owner ? leaveMenu(owner) : isOpen(item) ? openMenu(null) : view.focus());
  }
  const letter = letterOf(event);
  const named = items.find(other => other.querySelector('u')?.textContent?.toUpperCase() == letter);
  return named && (() => named.click());
}

function watchMenu() {
  const bar = document.querySelector('nav');
  if (!bar) return;
  bar.addEventListener('click', ({target, detail}) => {
    const item = itemAt(target);
    if (!item) return;
    if (!isOwner(item)) {
      view.focus();
      put(program => program.choose(Number(item.value)));
    } else if (!detail) {
      enterMenu(item, 0); // the click came from a key
    } else {
      openMenu(menuOf(item) == bar && isOpen(item) ? null : item);
      item.focus();
    }
  });
  bar.addEventListener('pointerover', ({target, pointerType}) => {
    const item = itemAt(target);
    if (!item || pointerType != 'mouse' || !itemsOf(bar).some(isOpen)) return;
    openMenu(isOwner(item) ? item : ownerOf(item));
    item.focus();
  });
  // Not every browser focuses a button at a click, so the click handler does it in all of them.
  bar.addEventListener('mousedown', event => event.preventDefault());
  bar.addEventListener('focusout', ({relatedTarget}) => {
    if (!(relatedTarget instanceof Element && bar.contains(relatedTarget))) openMenu(null);
  });
  bar.addEventListener('keydown', event => {
    const act = menuAction(event);
    if (!act) return;
    act();
    event.preventDefault();
  });
}
