echo $$ >one.pid
sleep 1000 &
echo $! >two.pid
wait
