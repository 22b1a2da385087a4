// Highlights the search words, in browsers that support it. Unlike the search, it does not ignore accents in the text,
// because a folded text has other offsets.
const foundWords = "Highlight" in window ? new Highlight() : null;
if (foundWords)
    CSS.highlights.set("found", foundWords);

function wordRanges(node, words) {
    const text = node.data.toLowerCase();
    if (text.length !== node.data.length) // the offsets would differ
        return [];
    const ranges = [];
    for (const word of words)
        for (let begin = text.indexOf(word); begin >= 0; begin = text.indexOf(word, begin + word.length))
            ranges.push(new StaticRange({
                startContainer: node, startOffset: begin, endContainer: node, endOffset: begin + word.length,
            }));
    return ranges;
}

function highlight(element, words) {
    if (!foundWords || words.length === 0)
        return;
    const nodes = document.createTreeWalker(element, NodeFilter.SHOW_TEXT);
    while (nodes.nextNode())
        for (const range of wordRanges(nodes.currentNode, words))
            foundWords.add(range);
}
