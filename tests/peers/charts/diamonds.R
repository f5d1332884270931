peer("diamonds/0001", function(d) {
  cells <- hexbin::hexbin(d$carat, d$price, xbins = 20, shape = 1)
  ggplot(data.frame(hexbin::hcell2xy(cells), count = cells@count), aes(x, y, fill = count)) +
    geom_hex(stat = "identity") + scale_fill_continuous(trans = "sqrt")
})
peer("diamonds/0002", function(d) {
  means <- aggregate(price ~ color + clarity, read.csv("data/diamonds/diamonds.csv"), mean)
  ggplot(means, aes(levels(d$color)[color], clarity, fill = price)) + geom_tile(colour = "white") +
    scale_y_reverse(breaks = seq_along(levels(d$clarity)), labels = levels(d$clarity))
})
