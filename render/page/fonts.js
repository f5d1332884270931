// The letters of the picture, which the page holds as data.

/** As rules of CSS. */
export const fontsOfPage = () => document.getElementById('fonts').textContent;

/** Texts are measured when the picture is laid out: their letters have to be there. */
export const loadFonts = () => Promise.allSettled([...document.fonts].map((face) => face.load()));
