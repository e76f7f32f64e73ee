// The page is whole without this script, which lets a reader search, sort, and close groups.
//
// Rows are read once into a tree. The class of a row says which level it opens (h), closes (f) or both (s); a row without
// one is a line of the deepest level:
//
//   h1   HEA200            { head: [HEA200], kids: [
//           2400   12          { head: [2400 12] },
//           1800    3          { head: [1800 3] } ],
//   f1   Total  15           foot: [Total 15] }
//
// Whatever a reader does changes the tree, and the rows follow it: in their order (arrange), and in what is seen (show).
'use strict';
(() => {
const table = document.querySelector('.list');
if (!table)
  return;

const deepest = Number(table.dataset.deepest);
const isLong = table.classList.contains('long');
const headings = [...table.tHead.rows[0].cells];
const searchedText = document.querySelector('.tools input');
const searchedColumn = document.querySelector('.tools select');
const foldAll = document.querySelector('.tools button');
const status = document.querySelector('.status');

const root = newNode(0);
const groups = []; // the nodes that can be closed
let numLines = 0;  // nodes without others in them
let bodies = [...table.tBodies];
const hasTotals = table.querySelector('tr[class^=f]') !== null;
let sorted = { column: -1, sign: 1 };

function newNode(index) {
  return { head: [], foot: [], kids: [], index, isFound: true, isClosed: false, isShown: true };
}

// path[level + 1] is the node that is open on that level.
function readTree() {
  const path = [root];
  const enter = () => {
    const siblings = path.at(-1).kids;
    const node = newNode(siblings.length);
    siblings.push(node);
    path.push(node);
  };
  for (const row of bodies.flatMap(body => [...body.rows])) {
    const kind = row.className[0] ?? 'h';
    const level = row.className ? Number(row.className.slice(1)) : deepest;
    const keep = level + (kind === 'f' ? 2 : 1);
    path.length = Math.min(path.length, keep);
    while (path.length < keep) // levels that show no line of their own
      enter();
    if (kind !== 'f')
      enter();
    path[level + 1][kind === 'f' ? 'foot' : 'head'].push(row);
    if (kind !== 'h')
      path.length = level + 1;
  }
  visit(root, node => { numLines += node.kids.length === 0 && node !== root ? 1 : 0; });
}

function visit(node, action) {
  action(node);
  for (const kid of node.kids)
    visit(kid, action);
}

// What holds the whole list is no group.
function makeFoldButtons() {
  let outermost = root;
  while (outermost.kids.length === 1)
    outermost = outermost.kids[0];
  for (const kid of outermost.kids)
    visit(kid, node => {
      const row = node.head[0] ?? node.foot[0];
      if (node.kids.length === 0 || !row)
        return;
      node.button = document.createElement('button');
      node.button.className = 'fold';
      node.button.type = 'button';
      node.button.setAttribute('aria-label', 'Lines of ' + (row.textContent.trim() || 'this group'));
      node.button.node = node;
      (row.querySelector('th') ?? row.cells[0]).prepend(node.button);
      fold(node, false);
      groups.push(node);
    });
  foldAll.hidden = groups.length === 0;
}

function fold(group, isClosed) {
  group.isClosed = isClosed;
  group.button.setAttribute('aria-expanded', !isClosed);
}

function makeSortButtons() {
  headings.forEach((heading, column) => {
    const button = document.createElement('button');
    button.type = 'button';
    button.append(...heading.childNodes);
    button.column = column;
    heading.append(button);
  });
}

// A number by its value, any other text in natural order. The page gives the value where the text does not show it as
// a plain decimal number, or stands in a column of texts: there 1.10 is a mark.
function keyOf(rows, column) {
  const cell = rows[0]?.cells[column];
  const text = cell?.textContent.trim() ?? '';
  const value = cell?.dataset.value ?? (headings[column].dataset.numeric !== undefined ? text : '');
  const isNumber = text !== '' && value !== '' && !Number.isNaN(Number(value));
  return isNumber ? Number(value) : naturalKey(text);
}

// Plain comparison of such keys is natural order: B2 before B10, B10 beside b10, and Träger beside Trager.
function naturalKey(text) {
  return text.toLowerCase().normalize('NFD').replace(/\d+/g, digits => digits.padStart(15, '0'));
}

// Numbers come before texts, and what is missing last, whichever way a list is sorted.
function compareKeys(a, b, sign) {
  if (a === '' || b === '')
    return (a === '') - (b === '');
  if (typeof a !== typeof b)
    return typeof a === 'number' ? -sign : sign;
  return a < b ? -sign : a > b ? sign : 0;
}

// Nothing leaves its group. A group goes by what its first line shows in the column; where none of its neighbours shows
// anything there, by its total.
function sortKids(node, column, sign) {
  const isByHead = node.kids.some(kid => keyOf(kid.head, column) !== '');
  for (const kid of node.kids)
    kid.key = keyOf(isByHead ? kid.head : kid.foot, column);
  node.kids.sort((a, b) => compareKeys(a.key, b.key, sign) || a.index - b.index);
}

// As the list has them.
function unsortKids(node) {
  node.kids.sort((a, b) => a.index - b.index);
}

// A click sorts upwards, the next one downwards, the third one not at all.
function sortBy(column) {
  if (column !== sorted.column)
    sorted = { column, sign: 1 };
  else
    sorted = sorted.sign > 0 ? { column, sign: -1 } : { column: -1, sign: 1 };
  headings.forEach(heading => heading.removeAttribute('aria-sort'));
  headings[sorted.column]?.setAttribute('aria-sort', sorted.sign > 0 ? 'ascending' : 'descending');
  visit(root, node => sorted.column < 0 ? unsortKids(node) : sortKids(node, sorted.column, sorted.sign));
  changeRows(() => { arrange(); show(); });
}

// Rows that are nowhere change faster, and of those that come back a browser lays out no more than stand near its window.
// What has the focus must not be among them.
function changeRows(change) {
  bodies.forEach(body => body.remove());
  change();
  const fragment = document.createDocumentFragment();
  bodies.forEach(body => fragment.append(body));
  table.tHead.after(fragment);
}

// Bodies begin where the file has them begin: at a group, or after so many rows that a browser had better not lay out
// all of them at once.
const leastRows = isLong ? 100 : 1;
const mostRows = 200;

function arrange() {
  let body, numRows, last;
  bodies = [];
  const append = row => {
    const kind = row.className[0];
    const isSeam = (kind === 'h' && last !== 'h') || (last === 'f' && kind !== 'f');
    if (!body || numRows >= mostRows || (isSeam && numRows >= leastRows)) {
      body = document.createElement('tbody');
      bodies.push(body);
      numRows = 0;
    }
    body.append(row);
    ++numRows;
    last = kind;
  };
  const appendNode = node => {
    node.head.forEach(append);
    node.kids.forEach(appendNode);
    node.foot.forEach(append);
  };
  appendNode(root);
}

// What a node can be found by in a column, or without one in all of them. The totals of a group are no part of its lines.
function textOf(node, column) {
  if (!node.texts) {
    const rows = node.kids.length > 0 ? node.head : [...node.head, ...node.foot];
    node.texts = headings.map((heading, index) =>
      rows.map(row => row.cells[index]?.textContent.toLowerCase() ?? '').join('\n'));
    node.text = node.texts.join('\n');
  }
  return column < 0 ? node.text : node.texts[column];
}

// A line is found by its own texts and those of the groups it stands in: every word, each in any place. `words` are those
// that no group around the node has.
function find(node, words, column) {
  const missing = words.length === 0 ? words : words.filter(word => !textOf(node, column).includes(word));
  node.isFound = missing.length === 0;
  if (node.kids.length > 0)
    node.isFound = node.kids.filter(kid => find(kid, missing, column)).length > 0;
  return node.isFound;
}

function search() {
  const words = searchedText.value.toLowerCase().split(/\s+/).filter(word => word !== '');
  find(root, words, Number(searchedColumn.value));
  groups.forEach(group => fold(group, false)); // what is found is to be seen
  changeRows(show);
}

function show() {
  let numShown = 0;
  const showNode = (node, isOpen) => {
    const isShown = isOpen && node.isFound;
    if (node.isShown !== isShown) {
      node.isShown = isShown;
      node.head.forEach(row => { row.hidden = !isShown; });
      node.foot.forEach(row => { row.hidden = !isShown; });
    }
    numShown += isShown && node.kids.length === 0 && node !== root ? 1 : 0;
    node.kids.forEach(kid => showNode(kid, isShown && !node.isClosed));
  };
  showNode(root, true);
  for (const body of bodies) {
    const numRows = body.querySelectorAll('tr:not([hidden])').length;
    body.hidden = numRows === 0;
    body.style.setProperty('--lines', numRows);
  }
  tell(numShown);
}

// Totals stay those of the whole list whatever is seen of it, and the page says so.
function tell(numShown) {
  const isPartial = numShown < numLines;
  const parts = [isPartial ? `${numShown} of ${numLines} lines shown` : `${numLines} lines`];
  const numClosed = groups.filter(group => group.isClosed).length;
  if (numClosed > 0)
    parts.push(`${numClosed} of ${groups.length} groups closed`);
  if (sorted.column >= 0)
    parts.push(`sorted by ${headings[sorted.column].textContent.trim()}` + (sorted.sign < 0 ? ', descending' : ''));
  if (isPartial && hasTotals)
    parts.push('totals are of all lines');
  status.textContent = parts.join('; ') + '.';
  status.classList.toggle('partial', isPartial || sorted.column >= 0);
  table.classList.toggle('partial', isPartial);
  foldAll.textContent = numClosed > 0 ? 'Open groups' : 'Close groups';
}

// One listener for all rows, however many there are.
table.addEventListener('click', event => {
  const button = event.target.closest('button');
  if (button?.node) {
    fold(button.node, !button.node.isClosed);
    show();
  } else if (button) {
    sortBy(button.column);
  }
});
foldAll.addEventListener('click', () => {
  const isClosed = !groups.some(group => group.isClosed);
  groups.forEach(group => fold(group, isClosed));
  changeRows(show);
});
let waiting;
for (const control of [searchedText, searchedColumn])
  control.addEventListener('input', () => {
    clearTimeout(waiting);
    waiting = setTimeout(search, 100); // milliseconds: a long list is searched between words, not between letters
  });

readTree();
makeFoldButtons();
makeSortButtons();
document.querySelector('.tools').hidden = false;
show();
})();
