'use strict';
// The functions that the program calls. page.h describes them.

const Ended = new Error('The game has ended.');

/** The form that is shown. @type {SVGSVGElement} */
let view;

/** The text at an address of the program's memory. @param {number} address */
function textAt(address) {
  if (!program) return '';
  const memory = new Uint8Array(program.memory.buffer);
  return new TextDecoder().decode(memory.subarray(address, memory.indexOf(0, address)));
}

/** A paragraph with the line breaks of the text. @param {string} text */
function paragraphOf(text) {
  const paragraph = document.createElement('p');
  const lines = text.split('\r\n').flatMap(line => [' ', document.createElement('br'), line]);
  paragraph.append(...lines.slice(2));
  return paragraph;
}

/** Joins the lines of the box if one of them is too wide for it, so that they wrap anew. */
function fitLines() {
  const text = one('dialog section');
  text.className = 'unbroken';
  const isTooWide = [...text.children].some(
    paragraph => paragraph.querySelector('br') && paragraph.scrollWidth > paragraph.clientWidth,
  );
  text.className = isTooWide ? 'joined' : '';
}
addEventListener('resize', fitLines);

/** The SVG group of a control. @param {number} place */
const groupAt = place => one('#control' + place, SVGGElement);

/** @type {Imports} */
const page = {
  now: () => performance.now(),
  secondsSinceMidnight() {
    const now = new Date();
    return (
      (now.getHours() * 60 + now.getMinutes()) * 60 +
      now.getSeconds() +
      now.getMilliseconds() / 1000
    );
  },
  wait: suspending(milliseconds => {
    awaited = 'input';
    if (milliseconds >= 0) alarm = setTimeout(goOn, Math.ceil(milliseconds));
  }),
  showBox: suspending((text, title, icon) => {
    awaited = 'box';
    view.focus();
    one('dialog h1').textContent = textAt(title);
    one('dialog svg', SVGElement).setAttribute('class', 'icon' + icon);
    const paragraphs = textAt(text).split('\r\n\r\n');
    one('dialog section').replaceChildren(...paragraphs.map(paragraphOf));
    box.showModal();
    fitLines();
    box.scrollTop = 0;
  }),
  open(markup, title, icon) {
    main.innerHTML = textAt(markup);
    document.title = textAt(title);
    one('link[rel=icon]', HTMLLinkElement).href =
      'data:image/svg+xml,' + encodeURIComponent(textAt(icon));
    view = one('#view', SVGSVGElement);
    view.setAttribute('aria-label', document.title); // trimmed by the browser
    watchPointer();
    watchMenu();
  },
  paint(place, markup) {
    const group = groupAt(place);
    group.innerHTML = textAt(markup);
    const caption = group.querySelector('text');
    if (!caption) return;
    const excess = caption.getComputedTextLength() / Number(caption.dataset.room);
    if (excess > 1) {
      caption.setAttribute('font-size', String(Number(caption.getAttribute('font-size')) / excess));
    }
  },
  describe(place, words) {
    groupAt(place).setAttribute('role', 'img');
    groupAt(place).setAttribute('aria-label', textAt(words));
  },
  announce(words) {
    news.append(paragraphOf(textAt(words)));
    if (news.childElementCount > 20) news.firstElementChild?.remove();
  },
  end() {
    throw Ended;
  },
  fail(text) {
    throw new Error(textAt(text));
  },
};
