states <- function() data.frame(region = state.region, division = state.division, state.x77, check.names = FALSE)
peer("regions/0001", function(d) {
  order <- names(sort(table(state.division), decreasing = TRUE))
  ggplot(states(), aes(factor(division, order))) + geom_bar(fill = "#0072b2") +
    geom_text(aes(label = after_stat(count)), stat = "count", vjust = -0.4) +
    scale_y_continuous(expand = expansion(c(0, 0.05)))
})
peer("regions/0002", function(d)
  ggplot(states(), aes(region, Population)) + stat_boxplot(geom = "errorbar", width = 0.3) +
    geom_boxplot(width = 0.6, outlier.shape = 1))
peer("regions/0003", function(d)
  ggplot(states(), aes(Illiteracy, `Life Exp`, colour = region, shape = region)) + geom_point() +
    facet_grid(. ~ region + division))
