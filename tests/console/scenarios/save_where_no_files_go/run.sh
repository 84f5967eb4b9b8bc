# Save/ leads to a folder that takes no files, whoever asks.
make_filled_root root
rmdir root/Miro-Vel-Ta/Save
ln -s /proc root/Miro-Vel-Ta/Save
remember root/Miro-Vel-Ta/Dati/*
printf 'echo before\nsave 5\necho after\n' | run_console --root root
check_unharmed
ls root/Miro-Vel-Ta/Dati
