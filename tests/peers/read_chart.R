# The table of a chart folder, ready to plot: columns by their short names, or as they
# stand in the file; categories as factors in the order of their labels' values.
read_chart <- function(folder) {
  source <- jsonlite::read_json(file.path(folder, "manifest.json"))$sources[[1]]
  data <- read.csv(file.path(folder, source$file), check.names = FALSE, encoding = "UTF-8")
  relabelled <- function(column) {
    values <- data[[column$name]]
    if (!column$categorical) return(values)
    from <- vapply(column$categories, `[[`, "", "value")
    labels <- vapply(column$categories, `[[`, "", "label")
    texts <- ifelse(values %in% from, labels[match(values, from)], as.character(values))
    # Numbers stand in their own order, texts in that of the alphabet.
    factor(texts, levels = if (is.numeric(values)) unique(texts[order(values)]) else sort(unique(texts)))
  }
  columns <- lapply(source$columns, relabelled)
  named <- vapply(source$columns, function(column)
    if (nzchar(column$shortLabel)) column$shortLabel else column$name, "")
  setNames(data.frame(columns, stringsAsFactors = FALSE), named)
}
