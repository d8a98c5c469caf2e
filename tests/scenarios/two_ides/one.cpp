int one(int a) {
  return a;
}
