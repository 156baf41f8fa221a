'use strict';
// The parts of the page that the scripts share.

/**
 * The first element that a selector names: it is there.
 * @template {Element} [T=HTMLElement]
 * @param {string} selector
 * @param {new () => T} [_kind]
 */
function one(selector, _kind) {
  return /** @type {T} */ (document.querySelector(selector));
}

const main = one('main');
const news = one('#news');
const box = one('dialog', HTMLDialogElement);
