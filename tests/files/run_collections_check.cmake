# Every game of the real collections must list; the games of those in
# standard export form must replay to their last move.
if(NOT EXISTS ${DATA}/.stamp)
  message(FATAL_ERROR "no test data in ${DATA}: files_fetch_data could not fetch the collections "
                      "(see its output; it needs the Debian archive and the npm registry)")
endif()
execute_process(COMMAND ${CHECK} --strict ${DATA}/wcc.pgn --strict ${DATA}/chessjs-benchmark.pgn
                ${DATA}/pychess-puzzles.pgn ${DATA}/pychess-lessons.pgn ${DATA}/eco.pgn
                ${DATA}/kokopu-misc.pgn
                RESULT_VARIABLE rc OUTPUT_VARIABLE out)
message("${out}")
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "a game in standard export form did not replay to its end")
endif()
