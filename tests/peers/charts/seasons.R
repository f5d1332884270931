months <- 12
deaths <- function() rbind(data.frame(month = c(time(mdeaths)), in_year = c(cycle(mdeaths)), deaths = c(mdeaths), sex = "Men"),
                           data.frame(month = c(time(fdeaths)), in_year = c(cycle(fdeaths)), deaths = c(fdeaths), sex = "Women"))
peer("seasons/0001", function(d)
  ggplot(deaths(), aes(month, deaths, fill = sex)) + geom_area(position = position_stack(reverse = TRUE)))
peer("seasons/0002", function(d)
  ggplot(aggregate(deaths ~ in_year + sex, deaths(), mean), aes(factor(in_year), deaths, fill = sex)) +
    geom_col(width = 1, colour = "white", position = position_stack(reverse = TRUE)) +
    scale_y_sqrt() + coord_polar(start = -pi / months))
peer("seasons/0003", function(d)
  ggplot(data.frame(in_year = c(cycle(ldeaths)), deaths = c(ldeaths), year = factor(floor(time(ldeaths) + 1e-9))),
         aes(in_year, deaths, colour = year)) + geom_line() + ylim(0, NA) +
    scale_x_continuous(breaks = 1:months, limits = c(1, months + 1)) + coord_polar())
peer("seasons/0004", function(d) {
  found <- acf(ldeaths, 2 * months, plot = FALSE)
  ggplot(data.frame(lag = 0:(2 * months), r = c(found$acf)), aes(lag, r)) + geom_col(width = 0.2) +
    geom_hline(yintercept = c(-1, 0, 1) * qnorm(0.975) / sqrt(length(ldeaths)), linetype = c(2, 1, 2))
})
