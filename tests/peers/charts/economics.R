over_dates <- function(d) {
  names(d)[3:4] <- c("observed", "fitted")
  d$day <- as.Date(d$date / 86400, origin = as.Date("1582-10-14"))
  ggplot(d, aes(day, observed, colour = decade, shape = decade)) + geom_point() +
    geom_line(aes(y = fitted))
}
peer("economics/0001", over_dates)
peer("economics/0002", over_dates)
