// Spreads tasks over threads that run the same script, no more than there are processors.

import {once} from 'node:events';
import {availableParallelism} from 'node:os';
import {parentPort, Worker} from 'node:worker_threads';

/** Each thread takes the memory of its pictures and fonts. */
const mostThreads = 4;

/** How many to use where a thread is worth its start with so many tasks. */
export const threadsFor = (tasks, worthwhile) =>
  Math.min(mostThreads, availableParallelism(), Math.floor(tasks / worthwhile));

/** What a thread does: answers each task with what `act` makes of it. */
export const serve = (act) =>
  parentPort.on('message', async (task) => parentPort.postMessage(await act(task)));

/**
 * Has the threads act on all tasks; calls `begun` with the number of a task and `ended` with
 * it and the answer.
 */
export async function spread(tasks, threads, script, begun, ended) {
  let next = 0;
  const workThrough = async () => {
    const worker = new Worker(script);
    while (next < tasks.length) {
      const task = next++;
      begun(task);
      worker.postMessage(tasks[task]);
      const [answer] = await once(worker, 'message');
      ended(task, answer);
    }
    await worker.terminate();
  };
  await Promise.all(Array.from({length: threads}, workThrough));
}
