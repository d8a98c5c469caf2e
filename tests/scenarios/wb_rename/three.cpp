int three;
