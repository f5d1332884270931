survival_by <- function(group, has_limits) function(d) {
  lung <- read.csv("data/lung/lung.csv", na.strings = "")
  lung$group <- factor(lung[[group]], labels = levels(d[[group]])[sort(unique(lung[[group]])) + (group == "ecog")])
  lung <- droplevels(subset(lung, !is.na(group) & ave(time, group, FUN = length) > 1))
  curves <- summary(survival::survfit(survival::Surv(time, status) ~ group, lung), censored = TRUE)
  found <- with(curves, data.frame(time, surv, lower, upper, n.censor,
    group = factor(sub("group=", "", strata), levels(lung$group))))
  start <- data.frame(time = 0, surv = 1, lower = 1, upper = 1, n.censor = 0, group = unique(found$group))
  plot <- ggplot(rbind(start, found), aes(time, surv, colour = group)) + geom_step() +
    geom_point(data = subset(found, n.censor > 0), shape = 3, colour = "black") +
    geom_hline(yintercept = 0.5, linetype = 2)
  if (!has_limits) return(plot)
  plot + geom_step(aes(y = lower), linetype = 3, na.rm = TRUE) + geom_step(aes(y = upper), linetype = 3, na.rm = TRUE)
}
peer("lung/0001", survival_by("sex", has_limits = TRUE))
peer("lung/0002", survival_by("ecog", has_limits = FALSE))
