# Computes from the data sets what the charts show, and writes numbers.json.
#
# usage: Rscript tests/peers/numbers.R >tests/peers/numbers.json     (R 4.2, with hexbin)
#
# Each entry is the data of an element: its items with the fields that are compared, all
# items of it or, where `some` says so, a few. The charts are those of the procedures and,
# of "documents", those that numbers.mjs writes over all complete rows of the penguins.

entries <- list()
add <- function(chart, data, items, some = FALSE)
  entries[[length(entries) + 1]] <<- list(chart = chart, data = data, some = some, items = items)
by_groups <- function(d, groups, f)
  do.call(rbind, lapply(split(d, d[groups], drop = TRUE), function(part)
    merge(unique(part[groups]), f(part), by = NULL)))
read <- function(name) read.csv(file.path("data", name, paste0(name, ".csv")), na.strings = "")

penguins <- na.omit(read("penguins"))
mass <- penguins$body_mass_g
flipper <- penguins$flipper_length_mm

# Bins hold their lower ends; those that are empty have no bar.
counts <- function(x, breaks) {
  found <- hist(x, breaks, right = FALSE, include.lowest = TRUE, plot = FALSE)
  data.frame(from = head(found$breaks, -1), to = tail(found$breaks, -1), low = 0,
             high = found$counts)[found$counts > 0, ]
}
normal <- function(x, at, area = 1) data.frame(place = at, high = area * dnorm(at, mean(x), sd(x)))

add("distributions/0001-distributions", "element_histogram_1", counts(flipper, seq(168, 238, 7)))
add("distributions/0001-distributions", "element_normal_1",
    normal(flipper, seq(168, 238, 7), area = 7 * length(flipper)), some = TRUE)
add("documents/bins", "e", counts(penguins$bill_length_mm, seq(min(penguins$bill_length_mm),
    max(penguins$bill_length_mm), length.out = 13)))
add("documents/usual", "e", counts(penguins$bill_length_mm, "Sturges"))
add("documents/width", "e", counts(penguins$bill_depth_mm, seq(12.75, 21.75, 0.75)))
add("documents/curves", "e", by_groups(penguins, "species", function(d)
  normal(d$body_mass_g, mean(d$body_mass_g) + c(-3.5, -1.75, 0, 1.75, 3.5) * sd(d$body_mass_g))), some = TRUE)

# Box plots: boxplot.stats has Tukey's hinges and the ends of whiskers.
boxes <- function(x) {
  five <- boxplot.stats(x)$stats
  beyond <- boxplot.stats(x)$out
  far <- beyond < five[2] - 3 * (five[4] - five[2]) | beyond > five[4] + 3 * (five[4] - five[2])
  data.frame(part = c("whisker", "whisker", "box", "median", ifelse(far, "extreme", "outlier")),
             low = c(five[c(1, 4, 2, 3)], beyond), high = c(five[c(2, 5, 4, 3)], beyond))
}
add("distributions/0003-distributions", "element_boxplot_1",
    setNames(by_groups(penguins, c("species", "sex"), function(d) boxes(d$body_mass_g)),
             c("variable6", "variable7", "part", "low", "high")))
add("documents/boxes", "e", by_groups(penguins, "island", function(d)
  boxes(rep(d$bill_depth_mm, d$flipper_length_mm)) |> unique()))

# Stacks: where an area or a bar ends, and the next begins.
stacked <- function(values) data.frame(low = head(cumsum(c(0, values)), -1), high = cumsum(values))
classes <- cut(flipper, seq(165, 240, 5), right = FALSE, labels = seq(167.5, 237.5, 5))
areas <- by_groups(as.data.frame(table(species = penguins$species, place = classes)), "place",
                   function(d) cbind(species = as.character(d$species), stacked(d$Freq)))
areas$place <- as.numeric(as.character(areas$place))
add("distributions/0002-distributions", "element_stackedarea_1",
    setNames(areas, c("place", "variable6", "low", "high")))
shares <- as.data.frame(100 * prop.table(table(island = penguins$island, species = penguins$species), 1))
add("islands/0002-islands", "element_stackedbar_1",
    setNames(by_groups(shares, "island", function(d)
      cbind(species = as.character(d$species), stacked(d$Freq))), c("variable6", "variable7", "low", "high")))
add("documents/shares", "e", by_groups(shares, "island", function(d)
  cbind(species = as.character(d$species), stacked(d$Freq))[d$Freq > 0, ]))

titanic <- read("titanic")
persons <- aggregate(persons ~ class, titanic, sum)
add("titanic/0001-titanic", "element_simplebar_1",
    data.frame(variable4 = as.character(persons$class), stacked(persons$persons)))
fates <- aggregate(persons ~ class + survived, titanic, sum)
add("titanic/0002-titanic", "element_clusteredbar_1",
    data.frame(variable4 = as.character(fates$class), variable5 = as.character(fates$survived),
               low = 0, high = fates$persons))

people <- read("us_population")
people$class <- 5 * (people$age %/% 5)
for (i in 1:3) {
  millions <- aggregate(persons / 1e6 ~ sex + class, subset(people, year == 1990 + 10 * i), sum)
  add(sprintf("population/%04d-population", i), "element_areabar_1",
      data.frame(variable6 = as.character(millions$class), variable7 = as.character(millions$sex),
                 low = 0, high = ifelse(millions$sex == 1, -1, 1) * millions[[3]]))
}

# Means with their limits, and other summaries of rows that weigh.
limits <- function(x) mean(x) + c(-1.96, 1.96) * sd(x) / sqrt(length(x))
means <- by_groups(penguins, c("island", "species"), function(d)
  data.frame(mean = mean(d$body_mass_g), low = limits(d$body_mass_g)[1], high = limits(d$body_mass_g)[2]))
add("islands/0001-islands", "element_clusteredbar_1",
    data.frame(variable6 = means$island, variable7 = means$species, low = 0, high = means$mean))
add("islands/0001-islands", "element_errorbar_1",
    data.frame(variable6 = means$island, variable7 = means$species, low = means$low, high = means$high))
summaries <- list(mean = mean, median = median, standardDeviation = sd, sum = sum,
                  count = length, min = min, max = max)
for (name in names(summaries)) add(paste0("documents/", name), "e", by_groups(penguins, "species", function(d)
  data.frame(value = summaries[[name]](rep(d$bill_depth_mm, d$flipper_length_mm)))))

drugs <- read("sleep")
add("sleep/0001-sleep", "element_differenceline_1",
    data.frame(variable6 = as.character(drugs$patient), low = pmin(drugs$drug_1, drugs$drug_2),
               high = pmax(drugs$drug_1, drugs$drug_2)))

# Hexagons, 20 across: their middles and how many rows they hold.
cells <- hexbin::hexbin(flipper, mass, xbins = 20, shape = 1)
middles <- hexbin::hcell2xy(cells)
add("documents/hexagons", "e", data.frame(place = middles$x, high = middles$y, value = cells@count))

# What procedures fit and load as columns, and curves that are drawn from their formulas.
all <- read("penguins")
measured <- all[complete.cases(all[c("flipper_length_mm", "body_mass_g")]), ]
within <- unsplit(lapply(split(measured, measured$species), function(d)
  fitted(lm(body_mass_g ~ flipper_length_mm, d))), measured$species)
add("penguins/0001-penguins", "element_simpleline_1",
    unique(data.frame(variable5 = measured$flipper_length_mm, variable7 = within)), some = TRUE)
overall <- lm(body_mass_g ~ flipper_length_mm, measured)
add("penguins/0001-penguins", "guide_yFunctionOfX_1",
    data.frame(x = c(175, 200, 225), y = predict(overall, data.frame(flipper_length_mm = c(175, 200, 225)))))

economics <- read("economics")
economics$day <- as.numeric(as.Date(economics$date) - as.Date("1582-10-14")) * 86400
trends <- unsplit(lapply(split(economics, economics$decade), function(d)
  fitted(lm(savings_rate ~ day, d, tol = 1e-30))), economics$decade)
add("economics/0002-economics", "element_simpleline_1",
    data.frame(variable5 = economics$day, variable7 = trends))

census <- read("census")
y <- census$population
# Divided by its largest, x keeps the digits of its powers.
over <- function(number, x, some_x) {
  z <- x / max(x)
  fit <- function(model, back = identity)
    data.frame(x = some_x, y = back(predict(model, data.frame(z = some_x / max(x)))))
  charts <- list(
    list(fit(lm(y ~ z)), fit(lm(y ~ z + I(z^2))), fit(lm(y ~ z + I(z^2) + I(z^3))), fit(lm(log(y) ~ z), exp)),
    list(fit(lm(y ~ log(z))), fit(lm(y ~ I(1 / z))), fit(lm(log(y) ~ I(1 / z)), exp), fit(lm(log(y) ~ z), exp)),
    list(fit(lm(log(y) ~ log(z)), exp), fit(lm(log(y) ~ z), exp),
         fit(lm(log(1 / y - 1 / 250) ~ z), function(t) 1 / (exp(t) + 1 / 250))))
  for (i in seq_along(charts)) for (k in seq_along(charts[[i]]))
    add(sprintf("census/%04d-census", number + i), paste0("guide_yFunctionOfX_", k), charts[[i]][[k]])
}
over(0, census$census, c(5, 9, 13))
days <- as.numeric(as.Date(census$day) - as.Date("1582-10-14")) * 86400
over(3, days, days[c(5, 9, 13)])

# States and the unemployed, by the columns of the chart's table.
add("regions/0001-regions", "element_simplebar_1",
    data.frame(variable6 = as.character(1:9), low = 0, high = as.vector(table(state.division))))
add("regions/0002-regions", "element_boxplot_1",
    setNames(by_groups(data.frame(region = as.character(as.integer(state.region)),
                                  population = state.x77[, "Population"]), "region",
                       function(d) boxes(d$population)), c("variable6", "part", "low", "high")))
unemployed <- subset(ggplot2::economics, format(date, "%m") %in% c("01", "07"))
unemployed$share <- 100 * unemployed$unemploy / unemployed$pop
add("unemployment/0001-unemployment", "source0", with(unemployed, data.frame(
    variable6 = as.numeric(date - as.Date("1582-10-14")) * 86400, variable7 = share)))
add("unemployment/0002-unemployment", "source0",
    with(subset(unemployed, date >= "2000-01-01"), data.frame(variable6 = share, variable7 = uempmed)))

# How far axes reach: what ggplot2 makes of the same layers.
reach <- function(chart, plot) {
  panel <- ggplot2::ggplot_build(plot)$layout$panel_params[[1]]
  for (role in c("x", "y"))
    add(chart, paste("scale", role), data.frame(low = panel[[role]]$continuous_range[1],
                                                high = panel[[role]]$continuous_range[2]))
}
points <- function(d, x, y, fitted = NULL) {
  plot <- ggplot2::ggplot(data.frame(x = d[[x]], y = d[[y]]), ggplot2::aes(x, y)) + ggplot2::geom_point()
  if (is.null(fitted)) plot else plot + ggplot2::geom_line(ggplot2::aes(y = fitted))
}
reach("census/0001-census", points(census, "census", "population"))
reach("penguins/0001-penguins", points(measured, "flipper_length_mm", "body_mass_g", within))
reach("economics/0002-economics", points(economics, "day", "savings_rate", trends))
reach("islands/0003-islands", points(penguins, "flipper_length_mm", "body_mass_g"))
reach("distributions/0001-distributions", ggplot2::ggplot(penguins, ggplot2::aes(flipper_length_mm)) +
  ggplot2::geom_histogram(breaks = seq(168, 238, 7), closed = "left") +
  ggplot2::scale_y_continuous(expand = ggplot2::expansion(c(0, 0.05))))

as_line <- function(entry) jsonlite::toJSON(entry, digits = I(12), auto_unbox = TRUE, rownames = FALSE)
cat("[", paste(vapply(entries, as_line, ""), collapse = ",\n"), "]", sep = "\n")
