// Descriptions as trees of lines, and new ones that are put together from their parts.
// Bytes are handled as texts of Latin-1, so that every byte stays what it is.

const mostChanges = 5;
const longestSource = 20_000;
const otherTexts = [
  'Vase', 'Smoky gray vase, hand-made', 'Dvořák & Söhne', '½ l "Riesling"', '1 249,00 €', '東京', '12', '',
].map((text) => Buffer.from(text, 'utf8').toString('latin1'));

const isNode = (part) => typeof part !== 'string';

/** The tree of a description whose nodes begin and end on lines of their own; null for another. */
function treeOf(text) {
  const root = { open: '', close: '', parts: [] };
  const nodes = [root];
  for (const line of text.split(/\r?\n/)) {
    const node = nodes.at(-1);
    if (/^\s*\([\w-]+\s*$/.test(line)) {
      nodes.push({ open: line, close: '', parts: [] });
      node.parts.push(nodes.at(-1));
    } else if (/^\s*[\w-]+\)\s*$/.test(line)) {
      node.close = line;
      nodes.pop();
      if (nodes.length === 0) {
        return null;
      }
    } else {
      node.parts.push(line);
    }
  }
  return nodes.length === 1 ? root : null;
}

function linesOf(part) {
  return isNode(part) ? [part.open, ...part.parts.flatMap(linesOf), part.close] : [part];
}

function nodesOf(node) {
  return [node, ...node.parts.filter(isNode).flatMap(nodesOf)];
}

const kindOf = (node) => node.open.trim().slice(1, 2).toLowerCase();
const keyOf = (leaf) => /^\s*\(([\w-]+)=/.exec(leaf)?.[1].toLowerCase();
const leavesOf = (node) => node.parts.filter((part) => !isNode(part) && keyOf(part));
const isStyle = (leaf) => /^[pc]s$|style/.test(keyOf(leaf));
const isExtended = ({ description }) => description.toString('latin1').startsWith('; quorvane 2');

/** The parts of all descriptions of one language, by what they can stand in the place of. */
class Parts {
  sources = [];
  #ofKind = {};

  add(source, tree) {
    this.sources.push({ ...source, tree });
    for (const node of nodesOf(tree).slice(1)) {
      (this.#ofKind[kindOf(node)] ??= []).push(...node.parts.filter((part) => isNode(part) || keyOf(part)));
    }
  }

  ofKind(node) {
    return this.#ofKind[kindOf(node)];
  }
}

export class SourcePool {
  languages = [new Parts(), new Parts()];

  constructor(cases) {
    for (const each of cases) {
      const tree = treeOf(each.description.toString('latin1'));
      if (tree && each.description.length <= longestSource && nodesOf(tree).length > 1) {
        this.languages[Number(isExtended(each))].add(each, tree);
      }
    }
  }
}

const hasKey = (node, leaf) => leavesOf(node).some((other) => keyOf(other) === keyOf(leaf));
const replace = (node, part, other) => node.parts.splice(node.parts.indexOf(part), 1, other);

// Most of what they make is still a description without errors.
const changes = [
  function leaveOut(node, random) {
    const part = random.of(node.parts);
    if (!isNode(part) || node.parts.filter(isNode).length > 1) {
      node.parts.splice(node.parts.indexOf(part), 1);
    }
  },
  function repeat(node, random) {
    const part = random.of(node.parts);
    if (isNode(part)) {
      node.parts.splice(node.parts.indexOf(part), 0, structuredClone(part));
    }
  },
  function putIn(node, random, imported) {
    const part = imported(node);
    if (isNode(part) || !hasKey(node, part)) {
      node.parts.splice(isNode(part) ? random.below(node.parts.length + 1) : 0, 0, part);
    }
  },
  function putInPlace(node, random, imported) {
    const part = random.of(node.parts);
    const other = imported(node);
    if (isNode(part) && isNode(other)) {
      replace(node, part, other);
    }
  },
  function otherValue(node, random, imported) {
    const other = imported(node);
    const part = leavesOf(node).find((leaf) => keyOf(leaf) === keyOf(other));
    if (!isNode(other) && part) {
      replace(node, part, other);
    }
  },
  function otherText(node, random) {
    const leaf = leavesOf(node).find((each) => keyOf(each) === 'pt');
    if (leaf) {
      replace(node, leaf, `(pt=${random.of(otherTexts)})`);
    }
  },
];

/** A part without the styles that only its own stylesheet has. */
function withStylesOf(part, text) {
  const parts = part.parts?.filter((each) =>
    isNode(each) || !isStyle(each) || text.includes(each.trim()));
  return isNode(part) ? { ...part, parts: parts.map((each) => withStylesOf(each, text)) } : part;
}

const mistake = (text, random) => {
  const place = random.below(text.length);
  return text.slice(0, place) + text.slice(place + 1);
};
const everyMistake = 12;

/** A description of the pool, changed with parts of others. */
export function combined(pool, random) {
  const parts = random.of(pool.languages);
  const { tree: original, ...source } = random.of(parts.sources);
  const sourceText = source.description.toString('latin1');
  const imported = (node) => {
    const fitting = parts.ofKind(node).filter((part) => isNode(part) || !isStyle(part));
    return withStylesOf(structuredClone(random.of(fitting)), sourceText);
  };
  const tree = structuredClone(original);
  for (let change = 0; change <= random.below(mostChanges); ++change) {
    const nodes = nodesOf(tree).slice(1).filter((node) => node.parts.length > 0);
    random.of(changes)(random.of(nodes), random, imported);
  }
  const text = tree.parts.flatMap(linesOf).join('\n');
  return {
    ...source,
    description: Buffer.from(
      random.below(everyMistake) === 0 ? mistake(text, random) : text, 'latin1'),
    pictures: Object.assign({}, ...parts.sources.map(({ pictures }) => pictures)),
    checks: random.below(2) === 0,
  };
}
