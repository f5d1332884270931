scatter_matrix <- function(d) {
  measures <- names(d)[-1]
  pairs <- do.call(rbind, lapply(measures, function(x) do.call(rbind, lapply(measures, function(y)
    data.frame(species = d$species, x = d[[x]], y = if (x == y) NA else d[[y]], across = x, up = y)))))
  pairs$across <- factor(pairs$across, measures)
  pairs$up <- factor(pairs$up, rev(measures))
  ggplot(pairs, aes(x, y, colour = species, shape = species)) +
    geom_point(na.rm = TRUE) +
    facet_grid(up ~ across, scales = "free")
}
peer("components/0001", scatter_matrix)
peer("components/0002", scatter_matrix)
peer("components/0003", function(d)
  ggplot(d, aes(V5, V6, colour = species, shape = species)) + geom_point() +
    geom_hline(yintercept = 0, linetype = 2) + geom_vline(xintercept = 0, linetype = 2) + coord_equal())
