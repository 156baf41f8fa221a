'use strict';
// Elements of the page that the scripts share.

/**
 * The first element that matches the selector. There must be one. `_kind` only gives its type.
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
