pyramid <- function(d)
  ggplot(d, aes(V6, V8, fill = sex)) + geom_col(width = 0.9) + coord_flip() + scale_y_continuous(labels = abs)
for (i in 1:3) peer(sprintf("population/%04d", i), pyramid)
