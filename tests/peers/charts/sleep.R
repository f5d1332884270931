peer("sleep/0001", function(d)
  ggplot(d, aes(patient, V8)) + geom_line(aes(group = patient)) + geom_point(aes(colour = V7, shape = V7)) +
    geom_hline(yintercept = 0, linetype = 2))
