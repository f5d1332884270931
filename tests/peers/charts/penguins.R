peer("penguins/0001", function(d)
  ggplot(d, aes(flipper_length_mm, body_mass_g)) +
    geom_point(aes(colour = species, shape = species)) +
    geom_smooth(aes(colour = species), method = "lm", formula = y ~ x, se = FALSE) +
    geom_smooth(method = "lm", formula = y ~ x, se = FALSE, fullrange = TRUE, linetype = 2, colour = "black"))
