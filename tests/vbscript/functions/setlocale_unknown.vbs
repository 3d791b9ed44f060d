SetLocale 99999 '! 447
