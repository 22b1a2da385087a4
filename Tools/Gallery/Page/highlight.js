// Highlights the search words, in browsers that support it. The words are folded (fold.js).
const foundWords = "Highlight" in window ? new Highlight() : null;
if (foundWords)
    CSS.highlights.set("found", foundWords);

function wordRanges(node, words) {
    const [text, offsets] = foldedWithOffsets(node.data);
    const ranges = [];
    for (const word of words)
        for (let begin = text.indexOf(word); begin >= 0; begin = text.indexOf(word, begin + word.length)) {
            let end = begin + word.length;
            while (offsets[end] === offsets[end - 1]) // a character that was folded into several is highlighted as a whole
                ++end;
            ranges.push(new StaticRange({
                startContainer: node, startOffset: offsets[begin], endContainer: node, endOffset: offsets[end],
            }));
        }
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
