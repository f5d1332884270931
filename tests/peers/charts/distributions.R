peer("distributions/0001", function(d) {
  x <- d$flipper_length_mm
  ggplot(d, aes(flipper_length_mm)) +
    geom_histogram(breaks = seq(168, 238, 7), closed = "left", fill = "#0072b2", colour = "white") +
    stat_function(fun = function(at) 7 * length(x) * dnorm(at, mean(x), sd(x)), xlim = c(168, 238)) +
    scale_y_continuous(expand = expansion(c(0, 0.05)))
})
peer("distributions/0002", function(d)
  ggplot(d, aes(V7, V8, fill = species)) + geom_area(position = position_stack(reverse = TRUE)) +
    scale_y_continuous(expand = expansion(c(0, 0.05))))
peer("distributions/0003", function(d)
  ggplot(d, aes(species, body_mass_g, fill = sex)) + stat_boxplot(geom = "errorbar", width = 0.4,
    position = position_dodge(0.75)) + geom_boxplot(width = 0.6, position = position_dodge(0.75),
    outlier.shape = 1))
