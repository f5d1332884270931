# gnuplot -c scatter.gp <data> <number of pictures> <picture>: the chart of procedure penguins.
data = ARG1
set datafile separator ','
set terminal svg size 960,672
set title 'Body mass and flipper length of penguins'
set xlabel 'Flipper length (mm)'
set ylabel 'Body mass (g)'
set key outside
species = 'Adelie Chinstrap Gentoo'
array a[4]
array b[4]
y(i) = i == 4 || strcol('species') eq word(species, i) ? column('body_mass_g') : NaN
do for [n = 1:int(ARG2)] {
  do for [i = 1:4] {
    stats data using (column('flipper_length_mm')):(y(i)) name 'line' nooutput
    a[i] = line_intercept
    b[i] = line_slope
  }
  set output sprintf('%s%d.svg', ARG3, n)
  plot for [i = 1:3] data using (column('flipper_length_mm')):(y(i)) title word(species, i) linetype i, \
    for [i = 1:3] a[i] + b[i] * x notitle linetype i, \
    a[4] + b[4] * x title 'All penguins' dashtype 2 linecolor 'black'
}
