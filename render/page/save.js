import {View} from 'vega';
import {expressionInterpreter} from 'vega-interpreter';

const pngScale = 2;

/** What a saved picture is made from: always the light one, as it is printed. */
const light = (runtime) => new View(runtime, {renderer: 'none', expr: expressionInterpreter});

const formats = [
  {
    name: 'SVG',
    file: 'chart.svg',
    url: async (runtime) =>
      URL.createObjectURL(new Blob([await light(runtime).toSVG()], {type: 'image/svg+xml'})),
  },
  {
    name: 'PNG',
    file: 'chart.png',
    url: (runtime) => light(runtime).toImageURL('png', pngScale),
  },
];

export function addSaveButtons(runtime, place) {
  for (const {name, file, url} of formats) {
    const button = document.createElement('button');
    button.textContent = `Save as ${name}`;
    button.addEventListener('click', async () => {
      const link = document.createElement('a');
      link.href = await url(runtime);
      link.download = file;
      link.click();
      setTimeout(() => URL.revokeObjectURL(link.href), 60000);
    });
    place.append(button);
  }
}
