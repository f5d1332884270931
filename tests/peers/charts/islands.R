from_zero <- scale_y_continuous(expand = expansion(c(0, 0.05)))
peer("islands/0001", function(d)
  ggplot(d, aes(island, V8, fill = species, ymin = V9, ymax = V10)) +
    geom_col(position = position_dodge2(preserve = "single")) +
    geom_errorbar(position = position_dodge2(preserve = "single", padding = 0.7)) + from_zero)
peer("islands/0002", function(d)
  ggplot(d, aes(island, V8, fill = species)) + geom_col(position = position_stack(reverse = TRUE)) +
    from_zero)
peer("islands/0003", function(d)
  ggplot(d, aes(flipper_length_mm, body_mass_g, colour = species, shape = species)) + geom_point() +
    facet_grid(sex ~ island))
