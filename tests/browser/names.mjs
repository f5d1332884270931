// What the charts that pages are tried with hold.

export const folders = {
  penguins: '0001-penguins', dates: '0002-economics', hostile: '0100-hostile', big: '0200-big',
  print: '0300-print', dark: '0301-dark', presentation: '0302-presentation',
  letters: '0400-letters', withoutFonts: '0401-without-fonts',
};
export const rowsOfBig = 250_000;

export const attack = `</script><script>window.broken = 1</script><img src=x onerror="window.broken = 1">` +
  `'"\`\${window.broken = 1}&amp;\\ \u2028 ]]> --> {{x}}\n*/`;

/** As hostile as the name of a file can be. */
export const nameOfHostile = `"'<img src=x onerror=alert(1)>\u2028&amp;\n\\`;
