unemployed <- function() subset(transform(ggplot2::economics, share = 100 * unemploy / pop),
                                format(date, "%m") %in% c("01", "07"))
peer("unemployment/0001", function(d)
  ggplot(unemployed(), aes(date, share)) + geom_line() +
    geom_hline(aes(yintercept = mean(share)), linetype = "dashed"))
peer("unemployment/0002", function(d)
  ggplot(subset(unemployed(), date >= "2000-01-01"), aes(share, uempmed)) + geom_path() + geom_point() +
    geom_text(aes(label = ifelse(format(date, "%m") == "01", format(date, "%Y"), "")), vjust = -0.8))
