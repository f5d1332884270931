# Between two neighbours a bar reaches to the number of clusters up to which both are in one.
joined <- hclust(dist(scale(read.csv("data/states/states.csv")[c("murder", "assault", "rape", "urban")])), "average")
icicle <- function(d) {
  bars <- data.frame(place = seq_len(nrow(d)), label = trimws(as.character(d[[1]])), clusters = nrow(joined$merge) + 1)
  between <- seq(2, nrow(bars), 2)
  states <- match(bars$label, read.csv("data/states/states.csv")$state)
  heights <- as.matrix(cophenetic(joined))[cbind(states[between - 1], states[between + 1])]
  bars$clusters[between] <- nrow(bars) %/% 2 + 1 - match(heights, joined$height)
  ggplot(bars, aes(place, clusters)) + geom_col(width = 1, fill = "#0072b2") +
    geom_hline(yintercept = 5, linetype = 2) +
    scale_x_continuous(breaks = bars$place[-between], labels = bars$label[-between])
}
peer("clusters/0001", function(d) icicle(d) + theme(axis.text.x = element_text(angle = 90, size = 6)))
peer("clusters/0002", function(d)
  icicle(d) + coord_flip() + theme(axis.text.y = element_text(size = 6)))
peer("clusters/0003", function(d)
  ggplot(data.frame(clusters = length(joined$height):1, distance = joined$height), aes(clusters, distance)) +
    geom_line() + geom_point())
