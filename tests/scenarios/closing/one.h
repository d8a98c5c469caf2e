class Frame;
