from_zero <- scale_y_continuous(expand = expansion(c(0, 0.05)))
peer("titanic/0001", function(d)
  ggplot(d, aes(1, countname, fill = class)) + geom_col(width = 1, position = position_stack(reverse = TRUE)) +
    coord_polar(theta = "y") + theme_void(base_size = 15))
peer("titanic/0002", function(d)
  ggplot(d, aes(class, countname, fill = survived)) + geom_col(position = "dodge") + from_zero)

# The line is the share of all persons, which the charts' own tables do not have.
all_persons <- read.csv("data/titanic/titanic.csv")
share <- 100 * weighted.mean(all_persons$survived, all_persons$persons)
by_class <- function(d)
  ggplot(d, aes(V4, V5)) + geom_col(fill = "#0072b2") + geom_point(aes(y = V6), shape = 1, size = 3) +
    geom_hline(yintercept = share, linetype = 2) + from_zero
for (i in 3:6) peer(sprintf("titanic/%04d", i), by_class)
