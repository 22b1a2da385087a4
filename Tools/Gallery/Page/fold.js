// The text in a form for comparisons that ignore case, accents and compatibility forms. The form of a
// character does not depend on its neighbours, so ς, which toLowerCase() writes at the end of a word, becomes σ.
function folded(text) {
    return text.normalize("NFKD").replace(/[\u0300-\u036f]/g, "").toLowerCase().replaceAll("ς", "σ");
}

// The folded text; for each of its characters, and for its end, the offset in the original text.
function foldedWithOffsets(text) {
    const characters = [], offsets = [];
    let offset = 0;
    for (const character of text) {
        for (const one of folded(character).split("")) {
            characters.push(one);
            offsets.push(offset);
        }
        offset += character.length;
    }
    return [characters.join(""), [...offsets, offset]];
}
