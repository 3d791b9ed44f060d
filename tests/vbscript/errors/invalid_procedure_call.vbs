x = Chr(-5) '! 5
