peer("sleep/0001", function(d)
  ggplot(d, aes(patient, V8)) + geom_line(aes(group = patient)) + geom_point(aes(colour = V7, shape = V7)) +
    geom_hline(yintercept = 0, linetype = 2))
peer("sleep/0002", function(d) {
  drugs <- split(sleep$extra, sleep$group)
  found <- t.test(drugs[[2]], drugs[[1]], paired = TRUE)
  differences <- data.frame(patient = factor(1:10), difference = drugs[[2]] - drugs[[1]])
  ggplot(differences, aes(reorder(patient, -difference), difference)) +
    geom_segment(aes(xend = reorder(patient, -difference), yend = 0)) + geom_point() + geom_hline(yintercept = 0) +
    geom_hline(yintercept = c(found$estimate, found$conf.int), linetype = 2)
})
