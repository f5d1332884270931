# Control limits of samples of five, from the mean of their ranges.
d2 <- 2.32593
d3 <- 0.86408
samples <- function(statistic) {
  light <- read.csv("data/light/light.csv")
  aggregate(speed ~ sample, light, statistic)
}
control <- function(points, center, below, above)
  ggplot(points, aes(sample, speed)) + geom_line() +
    geom_point(aes(shape = speed < below | speed > above), size = 3) +
    geom_hline(yintercept = c(center, below, above), linetype = c(1, 2, 2))
reach <- function() mean(samples(function(x) diff(range(x)))$speed)
peer("light/0001", function(d) {
  means <- samples(mean)
  off <- 3 * reach() / (d2 * sqrt(5))
  control(means, mean(means$speed), mean(means$speed) - off, mean(means$speed) + off)
})
peer("light/0002", function(d)
  control(samples(function(x) diff(range(x))), reach(), 0, reach() * (1 + 3 * d3 / d2)))
