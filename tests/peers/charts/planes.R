# ggplot2 has no third dimension. lattice draws the third variable of its formula upright
# and the second one backward; here that comes to the front.
in_space <- function(d, group)
  lattice::cloud(body_mass_g ~ flipper_length_mm * bill_depth_mm, d, groups = group,
                 auto.key = TRUE, scales = list(arrows = FALSE), screen = list(z = -35, x = -80),
                 ylim = rev(extendrange(d$bill_depth_mm, f = 0.05)))
peer("planes/0001", function(d) in_space(d, d$species))
peer("planes/0002", function(d)
  in_space(rbind(d, transform(d, body_mass_g = V8)), rep(c("observed", "fitted"), each = nrow(d))))
