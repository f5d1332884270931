# The gallery beside the same charts drawn by another program from the same tables.
#
# usage: Rscript compare.R <folder of this file> <output folder>
#
# The output folder holds, for each procedure, a folder of the charts that it made with
# their pictures. What is written there: a sheet for each chart, ours at the left, and
# index.html with all of them. A chart that nobody draws a second time is named.
suppressPackageStartupMessages({
  library(ggplot2)
  library(grid)
})

arguments <- commandArgs(trailingOnly = TRUE)
here <- arguments[1]
output <- arguments[2]

source(file.path(here, "read_chart.R"))
peers <- list()
#' Says how a chart is drawn: a function of its data, which gives a plot or draws it.
peer <- function(chart, draw) peers[[chart]] <<- draw
for (file in sort(list.files(file.path(here, "charts"), full.names = TRUE))) source(file)

theme_set(theme_classic(base_size = 13))
for (scale in c("colour", "fill"))
  options(setNames(list(list(unname(palette.colors(9, "Okabe-Ito")[c(6, 7, 4, 8, 3, 2)]))),
                   paste0("ggplot2.discrete.", scale)))

sheet <- function(folder, draw, file) {
  data <- read_chart(folder)
  ours <- png::readPNG(file.path(folder, "chart.png"))
  png(file, 2000, 780, res = 110)
  on.exit(dev.off())
  grid.newpage()
  shown <- min(960 / ncol(ours), 740 / nrow(ours))
  grid.raster(ours, x = 0.25, width = shown * ncol(ours) / 2000, height = shown * nrow(ours) / 780)
  plot <- draw(data)
  if (inherits(plot, "ggplot")) print(plot, vp = viewport(x = 0.75, width = 0.46, height = 0.94))
  else print(plot, position = c(0.52, 0.02, 0.98, 0.98), newpage = FALSE)
}

charts <- Sys.glob(file.path(output, "*", "[0-9]*"))
sheets <- character()
for (folder in charts) {
  number <- sub("-.*", "", basename(folder))
  chart <- paste0(basename(dirname(folder)), "/", number)
  if (is.null(peers[[chart]])) {
    message(chart, ": no file of ", file.path(here, "charts"), " draws it")
    next
  }
  message(chart)
  name <- paste0(sub("/", "-", chart), ".png")
  sheet(folder, peers[[chart]], file.path(output, name))
  sheets <- c(sheets, sprintf('<h2>%s</h2><img src="%s" width="1500" alt="%s, twice">', chart, name, chart))
}
writeLines(c("<!doctype html><meta charset=utf-8><title>Charts beside their peers</title>",
             "<p>Left: chartxml. Right: R.", sheets), file.path(output, "index.html"))
gone <- setdiff(names(peers), paste0(basename(dirname(charts)), "/", sub("-.*", "", basename(charts))))
if (length(gone) > 0) message("drawn by R alone: ", toString(gone))
