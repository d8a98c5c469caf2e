// of another
