# The components are computed again; which way an axis points is an accident of both.
ordinate <- function(d, measures, conditions = NULL) {
  states <- scale(read.csv("data/states/states.csv")[c(measures, conditions)])
  shown <- states[, measures]
  if (!is.null(conditions)) shown <- fitted(lm(shown ~ states[, conditions]))
  components <- prcomp(shown)
  scores <- sweep(components$x[, 1:2], 2, components$sdev[1:2], "/")
  scores <- sweep(scores, 2, sign(diag(cor(scores, d[c("V14", "V15")]))), "*")
  ends <- 2 * cor(states, scores)
  lines <- data.frame(x = ends[, 1], y = ends[, 2], measure = rownames(ends))
  ggplot(data.frame(x = scores[, 1], y = scores[, 2], d), aes(x, y)) +
    geom_hline(yintercept = 0, linetype = 2) + geom_vline(xintercept = 0, linetype = 2) +
    geom_point(aes(colour = region, shape = region)) + geom_text(aes(label = abbreviation), size = 3, vjust = -1) +
    geom_segment(aes(x = 0, y = 0, xend = x, yend = y), lines) + geom_text(aes(label = measure), lines) + coord_equal()
}
crimes <- c("murder", "assault", "rape")
peer("ordination/0001", function(d) ordinate(d, c(crimes, "urban")))
peer("ordination/0002", function(d)
  ordinate(d, crimes, c("urban", "income", "illiteracy", "graduates", "frost")))
