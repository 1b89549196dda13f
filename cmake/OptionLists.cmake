# Writes what the program itself says of its options: quackdash.6, and packed for installation quackdash.6.gz, from the
# template MANUAL, whose line @OPTIONS@ they take; and the completion for bash. All go to FOLDER.
set(ENV{ASAN_OPTIONS} detect_leaks=0) # a program with sanitizers is for tests
foreach(part manual completion)
    execute_process(COMMAND ${PROGRAM} --print-${part} OUTPUT_VARIABLE ${part} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
string(STRIP "${manual}" OPTIONS)
configure_file(${MANUAL} ${FOLDER}/quackdash.6 @ONLY)
execute_process(COMMAND ${GZIP} -9nc ${FOLDER}/quackdash.6 OUTPUT_FILE ${FOLDER}/quackdash.6.gz
    COMMAND_ERROR_IS_FATAL ANY)
file(WRITE ${FOLDER}/completion/quackdash "${completion}")
