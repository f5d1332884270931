// What stands in for packages that are left out of the scripts.
