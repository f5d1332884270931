# Coefficients are estimated again: curves agree only when both fits do.
limit <- 250
models <- list(
  Linear = function(x, y) fitted_by(lm(y ~ x)),
  Quadratic = function(x, y) fitted_by(lm(y ~ x + I(x^2))),
  Cubic = function(x, y) fitted_by(lm(y ~ x + I(x^2) + I(x^3))),
  Compound = function(x, y) fitted_by(lm(log(y) ~ x), exp),
  Logarithmic = function(x, y) fitted_by(lm(y ~ log(x))),
  Inverse = function(x, y) fitted_by(lm(y ~ I(1 / x))),
  S = function(x, y) fitted_by(lm(log(y) ~ I(1 / x)), exp),
  Growth = function(x, y) fitted_by(lm(log(y) ~ x), exp),
  Power = function(x, y) fitted_by(lm(log(y) ~ log(x)), exp),
  Exponential = function(x, y) fitted_by(lm(log(y) ~ x), exp),
  Logistic = function(x, y) fitted_by(lm(log(1 / y - 1 / limit) ~ x), function(z) 1 / (exp(z) + 1 / limit)))

fitted_by <- function(model, back = identity) function(x) back(predict(model, data.frame(x = x)))

origin <- as.Date("1582-10-14")
as_date <- function(seconds) as.Date(seconds / 86400, origin = origin)

fits_over <- function(x, names, scale = 1) {
  force(names)
  function(d) {
    # Powers of seconds would leave no digits.
    d$x <- d[[x]] / scale
    at <- seq(min(d$x), max(d$x), length.out = 300)
    curves <- do.call(rbind, lapply(names, function(name)
      data.frame(x = at, y = models[[name]](d$x, d$population)(at), model = name)))
    curves$model <- factor(curves$model, names)
    shown <- if (scale == 1) identity else function(x) as_date(x * scale)
    ggplot(d, aes(shown(x), population)) + geom_point(colour = "#0072b2") +
      geom_line(aes(shown(x), y, linetype = model), curves) +
      coord_cartesian(ylim = range(d$population, 0)) +
      labs(x = x, y = "Population (millions)", linetype = NULL)
  }
}

shown <- list(c("Linear", "Quadratic", "Cubic", "Compound"), c("Logarithmic", "Inverse", "S", "Growth"),
              c("Power", "Exponential", "Logistic"))
for (i in 1:3) {
  peer(sprintf("census/%04d", i), fits_over("census", shown[[i]]))
  peer(sprintf("census/%04d", i + 3), fits_over("day", shown[[i]], scale = 1e9))
}
