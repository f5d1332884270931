peer("mammals/0001", function(d) {
  mammals <- na.omit(read.csv("data/mammals/mammals.csv", na.strings = "")[c("body", "brain")])
  ggplot(mammals, aes(body, brain)) + geom_point() + scale_x_log10() + scale_y_log10() +
    geom_smooth(method = "lm", formula = y ~ x)
})
