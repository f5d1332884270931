peer("weather/0001", function(d) {
  months <- do.call(rbind, lapply(split(read.csv("data/weather/weather.csv"), ~month), function(days)
    with(days, data.frame(month = month[1], lowest = min(temp_min), low = mean(temp_min),
      mean = mean((temp_min + temp_max) / 2), high = mean(temp_max), highest = max(temp_max)))))
  months$month <- factor(months$month, labels = levels(d$month))
  ggplot(months, aes(month)) + geom_errorbar(aes(ymin = lowest, ymax = highest), width = 0.3) +
    geom_crossbar(aes(y = mean, ymin = low, ymax = high), fill = "#0072b2", fatten = 0) +
    geom_line(aes(y = mean, group = 1))
})
