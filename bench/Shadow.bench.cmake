tessaly_bench(Shadow USES core/Imaging)
