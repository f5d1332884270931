peer("mileage/0001", function(d) {
  mileage <- read.csv("data/mileage/mileage.csv")
  fit <- lm(highway ~ poly(displacement, 2), mileage)
  at <- data.frame(displacement = seq(1.6, 7, length.out = 81))
  single <- cbind(at, predict(fit, at, interval = "prediction"))
  ggplot(mileage, aes(displacement, highway)) +
    geom_ribbon(aes(y = fit, ymin = lwr, ymax = upr), single, alpha = 0.2) + geom_point() +
    geom_smooth(method = "lm", formula = y ~ poly(x, 2))
})
