# Rscript scatter.R <data> <number of pictures> <picture>: the chart of procedure penguins with ggplot2.
suppressPackageStartupMessages(library(ggplot2))
arguments <- commandArgs(trailingOnly = TRUE)
for (i in seq_len(as.integer(arguments[2]))) {
  d <- read.csv(arguments[1])
  plot <- ggplot(d, aes(flipper_length_mm, body_mass_g)) +
    geom_point(aes(colour = species, shape = species)) +
    geom_smooth(aes(colour = species), method = "lm", formula = y ~ x, se = FALSE) +
    geom_smooth(method = "lm", formula = y ~ x, se = FALSE, linetype = 2, colour = "black") +
    labs(title = "Body mass and flipper length of penguins", x = "Flipper length (mm)",
         y = "Body mass (g)", colour = "Species", shape = "Species") + theme_classic()
  svg(sprintf("%s%d.svg", arguments[3], i), 10, 7)
  print(plot)
  invisible(dev.off())
}
